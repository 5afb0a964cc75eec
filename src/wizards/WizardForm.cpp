#include "wizards/WizardForm.h"

#include <wx/statline.h>
#include <wx/wx.h>

#include "toolkit/WxText.h"
#include "toolkit/WxWaiting.h"
#include "toolkit/WxWheel.h"
#include "wizards/WizardControllerStrings.h"
#include "wizards/WizardFormStrings.h"

namespace kestrel::addin {

namespace {

constexpr const char* kInstallHelpKeyword = "HC_TeamInstallProvider";

using namespace std::chrono_literals;

constexpr int kWidth = 520;
constexpr int kHeight = 360;
constexpr int kGap = 8;
constexpr int kStatusPanel = 4;
constexpr auto kBetweenUpdates = 60ms;
using TClock = std::chrono::steady_clock;

}  // namespace

TWizardForm::TWizardForm(TWizardController& controller, const char* helpKeyword)
    : TModalForm({}, wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      controller_(controller),
      helpKeyword_(helpKeyword),
      clock_(TClock::now(), kBetweenUpdates, kBetweenUpdates) {
  for (auto** panel : {&Page1Panel, &Page2Panel, &Page3Panel, &Page4Panel}) *panel = new wxPanel(this);
  CreateProviderPage();
  CreateProjectPage();
  lbStatus = new TLinesView(
      Page4Panel, {[this] { return controller_.Status().size(); },
                   [this](std::size_t row) -> const std::string& { return controller_.Status()[row]; },
                   {},
                   {}});
  problemLabel_ = new wxStaticText(this, wxID_ANY, {});
  problemLabel_->SetForegroundColour(*wxRED);
  CreateButtons();
}

void TWizardForm::FormCreate() {
  LayOut();
  BindEvents();
  controller_.OnChange = [this] { Changed(); };
  controller_.OnProgress = [this] {
    if (clock_.Due(TClock::now())) Changed();
  };
  controller_.FormCreate(reinterpret_cast<TWindowHandle>(GetHandle()));
}

wxBoxSizer* TWizardForm::ColumnOf(wxPanel* panel) {
  if (!panel->GetSizer()) {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(new wxBoxSizer(wxVERTICAL), wxSizerFlags(1).Expand().Border(wxALL, panel->FromDIP(12)));
    panel->SetSizer(margin);
  }
  return dynamic_cast<wxBoxSizer*>(panel->GetSizer()->GetItem(std::size_t{0})->GetSizer());
}

wxStaticText* TWizardForm::AddLabel(wxPanel* panel, const TResString& text) {
  auto* label = new wxStaticText(panel, wxID_ANY, ToWx(text));
  ColumnOf(panel)->Add(label, wxSizerFlags().Border(wxBOTTOM, panel->FromDIP(4)));
  return label;
}

wxButton* TWizardForm::MakeBrowseButton(wxPanel* panel, const TResString& hint) {
  auto* button =
      new wxButton(panel, wxID_ANY, ToWx(sWizardBrowse), wxDefaultPosition, wxDefaultSize, wxBU_EXACTFIT);
  button->SetToolTip(ToWx(hint));
  return button;
}

wxBoxSizer* TWizardForm::BrowseRow(wxTextCtrl* text, wxButton* button) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(text, wxSizerFlags(1).CentreVertical());
  row->Add(button, wxSizerFlags().CentreVertical().Border(wxLEFT, text->FromDIP(4)));
  return row;
}

void TWizardForm::CreateProviderPage() {
  DirectionLabelProviderSelect = AddLabel(Page1Panel, sSelectProvider);
  cbProviders = new wxChoice(Page1Panel, wxID_ANY);
  IgnoreWheel(*cbProviders);
  NoProvidersLabel = new wxStaticText(Page1Panel, wxID_ANY, {});
  ColumnOf(Page1Panel)->Add(cbProviders, wxSizerFlags().Expand());
  ColumnOf(Page1Panel)->Add(NoProvidersLabel, wxSizerFlags().Border(wxTOP, FromDIP(12)));
}

void TWizardForm::CreateProjectPage() {
  DirectionLabelSelectProject = AddLabel(Page2Panel, sSelectProject);
  ProjectName = new wxTextCtrl(Page2Panel, wxID_ANY);
  ProjectBrowserButton = MakeBrowseButton(Page2Panel, sBrowseProjectHint);
  ColumnOf(Page2Panel)->Add(BrowseRow(ProjectName, ProjectBrowserButton), wxSizerFlags().Expand());
}

void TWizardForm::CreateButtons() {
  const auto button = [this](wxWindowID id, const TResString& label) {
    return new wxButton(this, id, ToWx(label), wxDefaultPosition, FromDIP(wxSize(88, 30)));
  };
  BackButton = button(wxID_ANY, sWizardBack);
  NextFinishButton = button(wxID_ANY, sWizardNext);
  CancelButton = button(wxID_CANCEL, sWizardCancel);
  NextFinishButton->SetDefault();
}

void TWizardForm::LayOut() {
  const int gap = FromDIP(kGap);
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  buttons->AddStretchSpacer();
  buttons->Add(BackButton);
  buttons->Add(NextFinishButton, wxSizerFlags().Border(wxRIGHT, gap));
  buttons->Add(CancelButton);
  auto* all = new wxBoxSizer(wxVERTICAL);
  for (auto* panel : {Page1Panel, Page2Panel, Page3Panel, Page4Panel})
    all->Add(panel, wxSizerFlags(1).Expand());
  all->Add(problemLabel_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(12)));
  all->Add(new wxStaticLine(this), wxSizerFlags().Expand());
  all->Add(buttons, wxSizerFlags().Expand().Border(wxALL, gap));
  SetSizer(all);
  SetMinClientSize(FromDIP(wxSize(kWidth, kHeight)) / 2 + FromDIP(wxSize(120, 60)));
  SetClientSize(FromDIP(wxSize(kWidth, kHeight)));
  CentreOnScreen();
}

void TWizardForm::BindEvents() {
  BackButton->Bind(wxEVT_BUTTON, &TWizardForm::BackButtonClick, this);
  NextFinishButton->Bind(wxEVT_BUTTON, &TWizardForm::NextFinishButtonClick, this);
  CancelButton->Bind(wxEVT_BUTTON, &TWizardForm::CancelButtonClick, this);
  ProjectBrowserButton->Bind(wxEVT_BUTTON, &TWizardForm::ProjectBrowserButtonClick, this);
  ProjectName->Bind(wxEVT_TEXT, &TWizardForm::ProjectNameChange, this);
  cbProviders->Bind(wxEVT_CHOICE, &TWizardForm::cbProvidersChange, this);
}

void TWizardForm::SetSentence(wxStaticText* label, const std::string& text) {
  label->SetLabel(wxControl::EscapeMnemonics(ToWx(text)));
  label->Wrap(GetClientSize().GetWidth() - FromDIP(32));
  label->Show(!text.empty());
}

void TWizardForm::Changed() {
  UpdatePage();
  if (!controller_.Page().Working) return;
  DispatchInput(*this);  // only Cancel is enabled
  clock_.Restart(TClock::now());
}

void TWizardForm::UpdatePage() {
  const auto& page = controller_.Page();
  const bool turned = page.Panel != panel_;
  panel_ = page.Panel;
  SetTitle(ToWx(page.Caption));
  int number = 0;
  for (auto* panel : {Page1Panel, Page2Panel, Page3Panel, Page4Panel}) panel->Show(++number == panel_);
  const bool couldGoOn = NextFinishButton->IsEnabled();
  NextFinishButton->SetLabel(ToWx(page.NextCaption));
  NextFinishButton->Enable(page.Next);
  BackButton->Enable(page.Back);
  CancelButton->Enable(page.Cancel);
  UpdateProviders();
  if (FromWx(ProjectName->GetValue()) != controller_.ProjectName())
    ProjectName->ChangeValue(ToWx(controller_.ProjectName()));
  UpdateStatus();
  UpdateControls();
  SetSentence(problemLabel_, page.Problem);
  Layout();
  if (turned || (panel_ == kStatusPanel && page.Next && !couldGoOn)) MoveFocus();
}

void TWizardForm::UpdateProviders() {
  wxArrayString names;
  for (const auto& name : controller_.Providers()) names.push_back(ToWx(name));
  if (names != cbProviders->GetStrings()) cbProviders->Set(names);
  cbProviders->SetSelection(controller_.SelectedProvider());
  SetSentence(NoProvidersLabel, controller_.Page().NoProviders ? sNoProvidersNotice.str() : std::string());
}

void TWizardForm::UpdateStatus() {
  if (panel_ != kStatusPanel) return;
  lbStatus->UpdateLines();
  lbStatus->ShowLast();
}

wxWindow* TWizardForm::FirstControl(int panel) const {
  if (panel == 1) return cbProviders;
  return panel == 2 ? ProjectName : nullptr;
}

void TWizardForm::MoveFocus() {
  auto* control = FirstControl(panel_);
  if (!control) control = controller_.Page().Working ? static_cast<wxWindow*>(lbStatus) : NextFinishButton;
  control->SetFocus();
}

void TWizardForm::FormKeyDown(wxKeyEvent& event) {
  const bool control = event.GetModifiers() == wxMOD_CONTROL;
  const int key = event.GetKeyCode();
  if (key == WXK_F1 && controller_.Page().Working) return;
  if (control && key == 'A' && lbStatus->IsDescendant(FindFocus()))
    lbStatus->SelectAll();
  else if (control && key == 'C' && lbStatus->IsDescendant(FindFocus()))
    lbStatus->CopySelected();
  else
    TModalForm::FormKeyDown(event);
}

std::string TWizardForm::HelpKeyword() const {
  return controller_.Page().NoProviders ? kInstallHelpKeyword : helpKeyword_;
}

void TWizardForm::BackButtonClick(wxCommandEvent&) { controller_.BackButtonClick(); }

void TWizardForm::NextFinishButtonClick(wxCommandEvent&) {
  controller_.NextFinishButtonClick();
  if (controller_.Finished()) CloseWith(mrOk);
}

void TWizardForm::CancelButtonClick(wxCommandEvent&) { CloseWith(mrCancel); }

void TWizardForm::CloseWith(int modalResult) {
  if (controller_.CancelButtonClick()) TModalForm::CloseWith(modalResult);
}

void TWizardForm::ProjectBrowserButtonClick(wxCommandEvent&) { controller_.ProjectBrowserButtonClick(); }
void TWizardForm::ProjectNameChange(wxCommandEvent&) {
  controller_.ProjectNameChange(FromWx(ProjectName->GetValue()));
}
void TWizardForm::cbProvidersChange(wxCommandEvent&) {
  controller_.cbProvidersChange(cbProviders->GetSelection());
}

}  // namespace kestrel::addin
