#include "commands/GetFileList.h"

#include <wx/wx.h>

#include <algorithm>
#include <set>
#include <string_view>

#include "commands/GetFileListStrings.h"
#include "expert/CommandContext.h"
#include "expert/SccSystem.h"
#include "toolkit/WindowSize.h"
#include "toolkit/WxText.h"
#include "ui/ButtonStrings.h"

namespace kestrel::addin {

TGetFileListForm* GetFileListForm = nullptr;

namespace {

enum TColumn { colName, colStatus, colPath };
constexpr int kNameWidth = 180;
constexpr int kStatusWidth = 100;
constexpr int kMinPathWidth = 120;
constexpr int kCellMargins = 16;
constexpr const char* kHelpKeyword = "HC_TeamFileList";  // of a command without one

std::size_t Row(long item) { return static_cast<std::size_t>(item); }

}  // namespace

TFilesListView::TFilesListView(wxWindow* parent, TFileListModel& model)
    : TVirtualList(parent, 0), model_(model) {
  EnableCheckBoxes();
  AppendColumn(ToWx(sNameColumn), wxLIST_FORMAT_LEFT, FromDIP(kNameWidth));
  AppendColumn(ToWx(sStatusColumn), wxLIST_FORMAT_LEFT, StatusWidth());
  AppendColumn(ToWx(sPathColumn), wxLIST_FORMAT_LEFT, FromDIP(kMinPathWidth));
  ShowRows();
}

int TFilesListView::StatusWidth() const {
  std::set<std::string_view> texts;  // few distinct ones, however many rows there are
  for (std::size_t row = 0; row < model_.Count(); ++row) texts.insert(model_.StatusOf(row));
  int width = FromDIP(kStatusWidth);
  for (const auto text : texts)
    width = std::max(width, GetTextExtent(ToWx(std::string(text))).GetWidth() + FromDIP(kCellMargins));
  return width;
}

void TFilesListView::FocusFirstChecked() {
  if (model_.Count() == 0) return;
  std::size_t row = 0;
  while (row < model_.Count() && !model_.IsChecked(row)) ++row;
  const long item = row < model_.Count() ? static_cast<long>(row) : 0;
  Select(item);
  Focus(item);
}

void TFilesListView::FitColumns() {
  const int scrollBar = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
  const int left =
      GetClientSize().GetWidth() - GetColumnWidth(colName) - GetColumnWidth(colStatus) - scrollBar;
  SetColumnWidth(colPath, std::max(FromDIP(kMinPathWidth), left));
}

wxString TFilesListView::OnGetItemText(long item, long column) const {
  switch (column) {
    case colName:
      return ToWx(model_.NameOf(Row(item)));
    case colStatus:
      return ToWx(model_.StatusOf(Row(item)));
    default:
      return ToWx(model_.DirectoryOf(Row(item)));
  }
}

bool TFilesListView::OnGetItemIsChecked(long item) const { return model_.IsChecked(Row(item)); }
void TFilesListView::SetItemChecked(long item, bool check) { model_.SetChecked(Row(item), check); }

TGetFileListForm::TGetFileListForm(TCommandContext& expert, TFileListModel& model)
    : TModalForm(ToWx(model.Caption.empty() ? sGetFileListCaption.str() : model.Caption),
                 wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER),
      Expert(expert),
      model_(model) {
  CreateControls();
  LayOut();
  BindEvents();
  if (model_.CommandKind == coGet) GetFileListForm = this;
}

TGetFileListForm::~TGetFileListForm() {
  if (GetFileListForm == this) GetFileListForm = nullptr;
}

void TGetFileListForm::CreateControls() {
  const auto button = [this](wxWindowID id, const TResString& label) {
    auto* made = new wxButton(this, id, ToWx(label), wxDefaultPosition, FromDIP(wxSize(101, 30)));
    made->Disable();
    return made;
  };
  const auto box = [this](const TResString& label, bool ticked, bool shown) {
    auto* made = new wxCheckBox(this, wxID_ANY, ToWx(label));
    made->SetValue(ticked);
    made->Show(shown);
    return made;
  };
  using enum TFileListModel::ExtraBox;
  FilesListView = new TFilesListView(this, model_);
  cbKeepCheckedOut = box(sKeepCheckedOut, model_.KeepCheckedOut, model_.Extra == KeepCheckedOut);
  cbCheckOut = box(sCheckOutAfterAdd, model_.CheckOutAfterAdd, model_.Extra == CheckOutAfterAdd);
  btnOK = button(wxID_OK, sButtonOk);
  btnCancel = button(wxID_CANCEL, sButtonCancel);
  btnCancel->Enable();
  btnCheckAll = button(wxID_ANY, sCheckAll);
  btnUncheckAll = button(wxID_ANY, sUncheckAll);
  btnAdvanced = button(wxID_ANY, sAdvanced);
  btnAdvanced->Enable(model_.HasOptions);
  btnAdvanced->Show(model_.HasOptions);
  btnOK->SetDefault();
}

void TGetFileListForm::LayOut() {
  const int gap = FromDIP(6);
  auto* right = new wxBoxSizer(wxVERTICAL);
  for (auto* button : {btnOK, btnCancel, btnCheckAll, btnUncheckAll})
    right->Add(button, wxSizerFlags().Expand().Border(wxBOTTOM, gap));
  right->Add(btnAdvanced, wxSizerFlags().Expand().Border(wxTOP, FromDIP(24)));
  auto* client = new wxBoxSizer(wxHORIZONTAL);
  client->Add(FilesListView, wxSizerFlags(1).Expand().Border(wxRIGHT, gap));
  client->Add(right);

  auto* all = new wxBoxSizer(wxVERTICAL);
  all->Add(new wxStaticText(this, wxID_ANY, ToWx(sFilesLabel)), wxSizerFlags().Border(wxLEFT | wxTOP, gap));
  all->Add(client, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  for (auto* box : {cbKeepCheckedOut, cbCheckOut})
    all->Add(box, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
  SetSizer(all);
  SetMinSize(FromDIP(wxSize(569, 274)));
  SetOuterSize(*this, FromDIP(wxSize(662, 359)));
  CentreOnScreen();
}

void TGetFileListForm::BindEvents() {
  Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent&) { FormShow(); });
  FilesListView->Bind(wxEVT_LIST_ITEM_CHECKED, &TGetFileListForm::FilesListViewClick, this);
  FilesListView->Bind(wxEVT_LIST_ITEM_UNCHECKED, &TGetFileListForm::FilesListViewClick, this);
  FilesListView->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    FilesListView->CallAfter([this] { FilesListView->FitColumns(); });
  });
  btnOK->Bind(wxEVT_BUTTON, &TGetFileListForm::btnOKClick, this);
  btnCancel->Bind(wxEVT_BUTTON, &TGetFileListForm::btnCancelClick, this);
  btnCheckAll->Bind(wxEVT_BUTTON, &TGetFileListForm::btnCheckAllClick, this);
  btnUncheckAll->Bind(wxEVT_BUTTON, &TGetFileListForm::btnUncheckAllClick, this);
  btnAdvanced->Bind(wxEVT_BUTTON, &TGetFileListForm::btnAdvancedClick, this);
}

void TGetFileListForm::AddFile(const std::string& fileName, const std::string& status) {
  model_.AddFile(fileName, status);
  FilesListView->ShowRows();
}

void TGetFileListForm::ChangeAllCheckedStates(bool checked) {
  model_.ChangeAllCheckedStates(checked);
  FilesListView->Refresh();
  CheckState();
}

void TGetFileListForm::CheckState() {
  const auto buttons = model_.CheckState();
  const auto* focused = FindFocus();
  // If the focused button gets disabled, no control would have the focus.
  if ((focused == btnCheckAll && !buttons.CheckAll) || (focused == btnUncheckAll && !buttons.UncheckAll))
    FilesListView->SetFocus();
  btnOK->Enable(buttons.Ok);
  btnCheckAll->Enable(buttons.CheckAll);
  btnUncheckAll->Enable(buttons.UncheckAll);
}

void TGetFileListForm::FormShow() {
  CurrentFile = model_.TickCurrent(rv_GetCurrentFile());
  FilesListView->FocusFirstChecked();
  FilesListView->SetFocus();
  CheckState();
}

void TGetFileListForm::FormKeyDown(wxKeyEvent& event) {
  const bool inList = FilesListView->IsDescendant(FindFocus());
  if (inList && event.GetKeyCode() == WXK_SPACE && !event.HasAnyModifiers())
    ToggleSelected();
  else if (inList && event.GetKeyCode() == 'A' && event.GetModifiers() == wxMOD_CONTROL)
    FilesListView->SelectAll();
  else
    TModalForm::FormKeyDown(event);
}

std::string TGetFileListForm::HelpKeyword() const {
  return model_.HelpKeyword.empty() ? kHelpKeyword : model_.HelpKeyword;
}

void TGetFileListForm::ToggleSelected() {
  FilesListView->ToggleSelected();
  CheckState();
}

void TGetFileListForm::btnOKClick(wxCommandEvent&) {
  model_.KeepCheckedOut = cbKeepCheckedOut->GetValue();
  model_.CheckOutAfterAdd = cbCheckOut->GetValue();
  CloseWith(mrOk);
}

void TGetFileListForm::btnCancelClick(wxCommandEvent&) { CloseWith(mrCancel); }

void TGetFileListForm::btnCheckAllClick(wxCommandEvent&) { ChangeAllCheckedStates(true); }

void TGetFileListForm::btnUncheckAllClick(wxCommandEvent&) { ChangeAllCheckedStates(false); }

void TGetFileListForm::btnAdvancedClick(wxCommandEvent&) {
  if (Expert.Activities.InProviderCall()) return wxBell();  // the provider's dialog is open already
  TStateMessages messages;
  // The host may have closed the project while this dialog was open.
  if (auto* project = Expert.Provider.CurrentProject())
    project->GetCommandOptions(model_.CommandKind, coShowAdvDialog, messages);
}

void TGetFileListForm::FilesListViewClick(wxListEvent& event) {
  model_.SetChecked(Row(event.GetIndex()), event.GetEventType() == wxEVT_LIST_ITEM_CHECKED);
  FilesListView->RefreshItem(event.GetIndex());
  CheckState();
}

}  // namespace kestrel::addin
