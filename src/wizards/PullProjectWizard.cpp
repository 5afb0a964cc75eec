#include "wizards/PullProjectWizard.h"

#include <wx/dirdlg.h>
#include <wx/wx.h>

#include "system/Paths.h"
#include "system/System.h"
#include "toolkit/WxText.h"
#include "wizards/PullProjectWizardStrings.h"

namespace kestrel::addin {

namespace {
constexpr int kTargetPanel = 3;
}

TPullProjectWizard::TPullProjectWizard(TCommandContext& expert)
    : TWizardForm(controller_, "HC_TeamPullProject"), controller_(expert) {
  CreateTargetPage();
  CreateStatusPage();
  FormCreate();
}

void TPullProjectWizard::CreateTargetPage() {
  DirectionLabelSelectTargetDirectory = AddLabel(Page3Panel, sPullSelectTarget);
  TargetDirectory = new wxTextCtrl(Page3Panel, wxID_ANY);
  TargetDirectoryBrowserButton = MakeBrowseButton(Page3Panel, sPullBrowseTarget);
  noteLabel_ = new wxStaticText(Page3Panel, wxID_ANY, {});
  ColumnOf(Page3Panel)
      ->Add(BrowseRow(TargetDirectory, TargetDirectoryBrowserButton), wxSizerFlags().Expand());
  ColumnOf(Page3Panel)->Add(noteLabel_, wxSizerFlags().Border(wxTOP, FromDIP(12)));
  targetLabel_ = new wxStaticText(Page2Panel, wxID_ANY, {});
  ColumnOf(Page2Panel)->Add(targetLabel_, wxSizerFlags().Border(wxTOP, FromDIP(12)));
  TargetDirectory->Bind(wxEVT_TEXT, &TPullProjectWizard::TargetDirectoryChange, this);
  TargetDirectoryBrowserButton->Bind(wxEVT_BUTTON, &TPullProjectWizard::TargetDirectoryBrowserButtonClick,
                                     this);
  TargetDirectory->Bind(wxEVT_MOTION, &TPullProjectWizard::TargetDirectoryMouseMove, this);
  Page3Panel->Bind(wxEVT_MOTION, &TPullProjectWizard::Page3PanelMouseMove, this);
}

void TPullProjectWizard::CreateStatusPage() {
  Label1 = new wxStaticText(Page4Panel, wxID_ANY, {}, wxDefaultPosition, wxDefaultSize,
                            wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
  cbOpenProject = new wxCheckBox(Page4Panel, wxID_ANY, ToWx(sPullOpenProject));
  cbOpenProject->SetValue(true);
  auto* column = ColumnOf(Page4Panel);
  column->Add(Label1, wxSizerFlags().Expand().Border(wxBOTTOM, FromDIP(4)));
  column->Add(lbStatus, wxSizerFlags(1).Expand());
  column->Add(cbOpenProject, wxSizerFlags().Border(wxTOP, FromDIP(8)));
}

void TPullProjectWizard::UpdateControls() {
  if (FromWx(TargetDirectory->GetValue()) != controller_.TargetDirectory())
    TargetDirectory->ChangeValue(ToWx(controller_.TargetDirectory()));
  SetSentence(noteLabel_, controller_.TargetNote());
  // The provider may have changed the target directory.
  SetSentence(targetLabel_, Format(sTargetOfPull, {controller_.TargetDirectory()}));
  Label1->SetLabel(
      wxControl::EscapeMnemonics(ToWx(controller_.Page().Next ? sPullStatus.str() : controller_.Progress())));
  cbOpenProject->Show(controller_.CanOpen());
  Page4Panel->Layout();
}

wxWindow* TPullProjectWizard::FirstControl(int panel) const {
  return panel == kTargetPanel ? TargetDirectory : TWizardForm::FirstControl(panel);
}

std::string TPullProjectWizard::FileToOpen() const {
  const bool wanted = controller_.Finished() && controller_.CanOpen() && cbOpenProject->GetValue();
  return wanted ? controller_.ProjectFile() : std::string();
}

void TPullProjectWizard::TargetDirectoryChange(wxCommandEvent&) {
  controller_.TargetDirectoryChange(FromWx(TargetDirectory->GetValue()));
}

void TPullProjectWizard::TargetDirectoryBrowserButtonClick(wxCommandEvent&) { BrowseForTargetFolder(); }

void TPullProjectWizard::BrowseForTargetFolder() {
  wxDirDialog dialog(this, ToWx(sPullSelectTarget));
  BrowseForTargetFolderBeforeExecute(dialog);
  if (dialog.ShowModal() == wxID_OK) BrowseForTargetFolderAccept(dialog);
}

// Starts at the typed directory or its nearest existing parent.
void TPullProjectWizard::BrowseForTargetFolderBeforeExecute(wxDirDialog& dialog) {
  auto directory = ExcludeTrailingPathDelimiter(Trim(controller_.TargetDirectory()));
  while (!directory.empty() && !DirectoryExists(directory) && ExtractFileDir(directory) != directory)
    directory = ExtractFileDir(directory);
  dialog.SetPath(ToWx(directory));
}

void TPullProjectWizard::BrowseForTargetFolderAccept(const wxDirDialog& dialog) {
  controller_.TargetDirectoryChange(FromWx(dialog.GetPath()));
  TargetDirectory->SetFocus();
}

// A path that is wider than its text box is shown as a tooltip.
void TPullProjectWizard::TargetDirectoryMouseMove(wxMouseEvent& event) {
  event.Skip();
  const auto path = TargetDirectory->GetValue();
  const bool hidden =
      TargetDirectory->GetTextExtent(path).GetWidth() > TargetDirectory->GetClientSize().GetWidth();
  const auto hint = hidden ? path : ToWx(sPullTargetHint);
  if (TargetDirectory->GetToolTipText() != hint) TargetDirectory->SetToolTip(hint);
}

void TPullProjectWizard::Page3PanelMouseMove(wxMouseEvent& event) {
  event.Skip();
  TargetDirectory->UnsetToolTip();
}

}  // namespace kestrel::addin
