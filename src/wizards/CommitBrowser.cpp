#include "wizards/CommitBrowser.h"

#include <wx/notebook.h>
#include <wx/statusbr.h>
#include <wx/wx.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>

#include "expert/CommandContext.h"
#include "expert/CommentMemory.h"
#include "expert/ProgressClock.h"
#include "expert/ProviderWindows.h"
#include "expert/SccSystem.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWaiting.h"
#include "wizards/CommitBrowserStrings.h"
#include "wizards/CommitGrid.h"
#include "wizards/CommitRowsStrings.h"
#include "wizards/CommitRunner.h"

namespace kestrel::addin {

namespace {

using namespace std::chrono_literals;

/// Preview limit; keeps row navigation responsive for huge files.
constexpr std::size_t kShownBytes = 1 << 20;

/// The beginning of a file, for display in a text control.
std::string BeginningOf(const std::string& fileName) {
  std::error_code unknown;
  if (std::filesystem::is_other(ToFilePath(fileName), unknown)) return {};  // reading from a pipe would block
  std::string text(kShownBytes + 1, '\0');
  std::ifstream file(ToFilePath(fileName), std::ios::binary);
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  text = TruncateUtf8(text, kShownBytes);
  std::ranges::replace(text, '\0', ' ');  // would end the control's text
  return text;
}

}  // namespace

/// Shows the progress in a line of the window.
class TCommitBrowser::TProgressLine final : public IProgress {
 public:
  TProgressLine(wxStaticText& line, std::size_t total) : line_(line), total_(total) {}
  TProgressLine(const TProgressLine&) = delete;
  TProgressLine& operator=(const TProgressLine&) = delete;
  ~TProgressLine() override { Show({}); }

  void Step(std::size_t done, const std::string& what) override {
    if (!clock_.Due(TClock::now())) return;
    Show(Format(sCommitProgress,
                {static_cast<long long>(done) + 1, static_cast<long long>(total_), ExtractFileName(what)}));
  }

 private:
  using TClock = std::chrono::steady_clock;

  void Show(const std::string& text) {
    line_.SetLabelText(ToWx(text));
    DispatchInput(*wxGetTopLevelParent(&line_));
  }

  wxStaticText& line_;
  std::size_t total_;
  TProgressClock clock_{TClock::now(), 0ms, 50ms};
};

TCommitBrowser::TCommitBrowser(TCommandContext& expert)
    : TModalForm(ToWx(sCommitBrowserCaption), wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER | wxMAXIMIZE_BOX),
      FExpert(&expert),
      projectFile_(GetCurrentProjectFile()) {
  CreateControls();
  LayOut();
  FormCreate();
  BindEvents();
}

void TCommitBrowser::FormCreate() {
  AddRows();
  table_ = new TCommitTable(FRows, ExtractFileDir(projectFile_));
  RestoreComments();
  individual_.Update();
  summary_.Update();
  StringGrid1->Fill(table_, ActivityComboBox->GetBestSize().GetHeight());
}

void TCommitBrowser::AddRows() {
  for (const auto& row : GatherCommitRows(*FExpert)) AddRow(row.FileName, row.Status, row.Activity);
}

void TCommitBrowser::AddRow(const std::string& fileName, const std::string& state, TCommitActivity activity) {
  FRows.push_back({activity, state, fileName, {}});
  ++FRowCount;
}

void TCommitBrowser::BindEvents() {
  Bind(wxEVT_INIT_DIALOG, [this](wxInitDialogEvent&) { FormShow(); });
  StringGrid1->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    CallAfter(&TCommitBrowser::FormResize);
  });
  StringGrid1->Bind(wxEVT_GRID_SELECT_CELL, &TCommitBrowser::StringGrid1SelectCell, this);
  StringGrid1->Bind(wxEVT_GRID_CELL_LEFT_CLICK, [this](wxGridEvent& event) {
    // Clicking the current cell does not select a cell, so there is no event that would show the list.
    if (event.GetRow() == StringGrid1->GetGridCursorRow() && event.GetCol() == cgcActivity &&
        StringGrid1->GetGridCursorCol() == cgcActivity && CurrentRow())
      PlaceActivities(event.GetRow());
    else
      event.Skip();
  });
  for (const auto scrolled : {wxEVT_SCROLLWIN_TOP, wxEVT_SCROLLWIN_BOTTOM, wxEVT_SCROLLWIN_LINEUP,
                              wxEVT_SCROLLWIN_LINEDOWN, wxEVT_SCROLLWIN_PAGEUP, wxEVT_SCROLLWIN_PAGEDOWN,
                              wxEVT_SCROLLWIN_THUMBTRACK, wxEVT_SCROLLWIN_THUMBRELEASE})
    StringGrid1->Bind(scrolled, [this](wxScrollWinEvent& event) {
      event.Skip();
      StringGrid1TopLeftChanged();
    });
  ActivityComboBox->Bind(wxEVT_COMBOBOX, &TCommitBrowser::ActivityComboBoxChange, this);
  TCommitPageControl->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, &TCommitBrowser::TCommitPageControlChange, this);
  TCheckBoxPathTrim->Bind(wxEVT_CHECKBOX, &TCommitBrowser::TCheckBoxPathTrimClick, this);
  TMemoIndividualComment->Bind(wxEVT_TEXT, &TCommitBrowser::TMemoIndividualCommentChange, this);
  TCheckboxIndividualComment->Bind(wxEVT_CHECKBOX, &TCommitBrowser::TCheckboxIndividualCommentClick, this);
  TMemoSummaryComments->Bind(wxEVT_TEXT, &TCommitBrowser::TMemoSummaryCommentsChange, this);
  TCheckBoxSummaryComment->Bind(wxEVT_CHECKBOX, &TCommitBrowser::TCheckBoxSummaryCommentClick, this);
  TButtonShowDiff->Bind(wxEVT_BUTTON, &TCommitBrowser::TButtonShowDiffClick, this);
  TButtonShowHistory->Bind(wxEVT_BUTTON, &TCommitBrowser::TButtonShowHistoryClick, this);
  TButtonCancel->Bind(wxEVT_BUTTON, &TCommitBrowser::TButtonCancelClick, this);
  TButtonCommit->Bind(wxEVT_BUTTON, &TCommitBrowser::TButtonCommitClick, this);
  HelpButton->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { HelpButtonClick(); });
}

void TCommitBrowser::FormShow() {
  FShown = true;
  FormResize();  // the size event may have been handled before there were columns
  StringGrid1->SetFocus();
  DisplayWorkspaceFile(StringGrid1->GetGridCursorRow());
}

void TCommitBrowser::FormResize() {
  HideActivities();
  StringGrid1->FitColumns();
}

// ------------------------------------------------------------------------------------------------ rows

TCommitRowData* TCommitBrowser::RowAt(int row) {
  return row >= 0 && row < FRowCount ? &FRows[static_cast<std::size_t>(row)] : nullptr;
}

TCommitRowData* TCommitBrowser::CurrentRow() { return RowAt(StringGrid1->GetGridCursorRow()); }

void TCommitBrowser::StringGrid1SelectCell(wxGridEvent& event) {
  individual_.Update();  // the deferred call may be pending
  if (auto* left = CurrentRow()) left->Comment = FromWx(TMemoIndividualComment->GetValue());
  const int row = event.GetRow();
  table_->Highlighted = row;
  StringGrid1->ForceRefresh();
  if (event.GetCol() == cgcActivity && RowAt(row) && FShown)
    PlaceActivities(row);
  else
    HideActivities();
  const auto* entered = RowAt(row);
  TMemoIndividualComment->ChangeValue(entered ? ToWx(entered->Comment) : wxString());
  individual_.Update();
  DisplayWorkspaceFile(row);
}

void TCommitBrowser::PlaceActivities(int row) {
  StringGrid1->MakeCellVisible(row, cgcActivity);
  ActivityComboBox->SetSelection(RowAt(row)->Activity);
  ActivityComboBox->SetSize(StringGrid1->ShownRect(row, cgcActivity));
  ActivityComboBox->Show();
  ActivityComboBox->SetFocus();
}

void TCommitBrowser::HideActivities() {
  if (!ActivityComboBox->IsShown()) return;
  const bool hadFocus = ActivityComboBox->IsPopupShown() || ActivityComboBox->IsDescendant(FindFocus());
  ActivityComboBox->Dismiss();  // the list is a window of its own
  ActivityComboBox->Hide();
  if (hadFocus) StringGrid1->SetFocus();  // otherwise no control would have the focus
}

void TCommitBrowser::OpenActivities(TCommitActivity activity) {
  const int row = StringGrid1->GetGridCursorRow();
  if (StringGrid1->GetGridCursorCol() != cgcActivity) StringGrid1->GoToCell(row, cgcActivity);
  if (!ActivityComboBox->IsShown()) PlaceActivities(row);
  ActivityComboBox->OpenAt(activity);
}

void TCommitBrowser::StringGrid1TopLeftChanged() { HideActivities(); }

void TCommitBrowser::ActivityComboBoxChange(wxCommandEvent&) {
  if (auto* row = CurrentRow())
    row->Activity = static_cast<TCommitActivity>(ActivityComboBox->GetSelection());
  HideActivities();
  StringGrid1->SetFocus();
  StringGrid1->ForceRefresh();
}

void TCommitBrowser::DisplayWorkspaceFile(int row) {
  const auto* data = RowAt(row);
  if (!data || !FileExists(data->FileName)) {
    TMemoWorkspaceSource->ChangeValue(ToWx(sFileNotLocal));
    sourceStatus_->SetStatusText(data ? ToWx(data->FileName) : wxString());
    return;
  }
  TMemoWorkspaceSource->ChangeValue(ToWx(BeginningOf(data->FileName)));
  std::error_code ignored;
  const auto size = std::filesystem::file_size(ToFilePath(data->FileName), ignored);
  sourceStatus_->SetStatusText(
      ToWx(Format(size > kShownBytes ? sFilePartShown : sFileSize,
                  {data->FileName, static_cast<long long>(size), static_cast<long long>(kShownBytes)})));
}

void TCommitBrowser::TCheckBoxPathTrimClick(wxCommandEvent&) {
  table_->TrimPaths = TCheckBoxPathTrim->GetValue();
  StringGrid1->ForceRefresh();
}

// ------------------------------------------------------------------------------------------------ keyboard

void TCommitBrowser::FormKeyDown(wxKeyEvent& event) {
  if (busy_ || CMDialogKey(event) || TurnToPage(event) || GridKeyDown(event)) return;
  const bool open = ActivityComboBox->IsPopupShown();
  if (open && event.GetKeyCode() == WXK_ESCAPE)
    ActivityComboBox->Dismiss();
  else if (open && event.GetKeyCode() != WXK_F1)
    event.Skip();
  else
    TModalForm::FormKeyDown(event);
}

bool TCommitBrowser::CMDialogKey(const wxKeyEvent& event) {
  if (event.GetKeyCode() != WXK_TAB || !ActivityComboBox->IsDescendant(FindFocus())) return false;
  ActivityComboBox->SetFocus();
  return true;
}

bool TCommitBrowser::GridKeyDown(const wxKeyEvent& event) {
  const bool open = ActivityComboBox->IsPopupShown();
  const bool inList = open || ActivityComboBox->IsDescendant(FindFocus());
  const auto* row = CurrentRow();
  if (!row || (!inList && !StringGrid1->IsDescendant(FindFocus()))) return false;
  const int key = event.GetKeyCode();
  if (event.GetModifiers() == wxMOD_ALT && key == WXK_DOWN) return OpenActivities(row->Activity), true;
  if (event.HasAnyModifiers()) return false;
  if (key > WXK_SPACE && key < WXK_DELETE) {
    const auto from = open ? ActivityComboBox->Pointed() : row->Activity;
    const auto activity = NextActivityWith(static_cast<char>(key), from);
    if (activity) OpenActivities(*activity);
    return activity.has_value();
  }
  if (open) return false;
  constexpr std::array kOpeningKeys{static_cast<int>(WXK_SPACE), static_cast<int>(WXK_RETURN),
                                    static_cast<int>(WXK_NUMPAD_ENTER), static_cast<int>(WXK_F2),
                                    static_cast<int>(WXK_F4)};
  if (std::ranges::count(kOpeningKeys, key)) return OpenActivities(row->Activity), true;
  return StringGrid1->MoveWith(key);  // by default Home and End stay in the row
}

bool TCommitBrowser::TurnToPage(const wxKeyEvent& event) {
  // The toolkit does not support access keys of tabs.
  const struct {
    wxNotebook* Book;
    std::size_t Page;
    TResString Caption;
    wxWindow* First;  // gets the focus
  } pages[] = {{TCommitPageControl, 0, sCommitsPage, StringGrid1},
               {TCommitPageControl, 1, sSummaryCommentPage, TMemoSummaryComments},
               {TFileDisplayPageControl, 0, sIndividualCommentPage, TMemoIndividualComment},
               {TFileDisplayPageControl, 1, sLocalSourcePage, TMemoWorkspaceSource},
               {TFileDisplayPageControl, 2, sDiffAndHistoryPage, TButtonShowDiff}};
  if (event.GetModifiers() != wxMOD_ALT) return false;
  for (const auto& [book, page, caption, first] : pages) {
    const std::string_view text = caption;
    if (wxToupper(text[text.find('&') + 1]) != event.GetKeyCode() || !book->IsShownOnScreen()) continue;
    book->SetSelection(page);
    first->SetFocus();
    return true;
  }
  return false;
}

void TCommitBrowser::HelpButtonClick() { ShowHelp(); }

// ------------------------------------------------------------------------------------------------ comments

void TCommitBrowser::RestoreComments() {
  const TCommentMemory memory(projectFile_);
  bool anyOwn = false;
  for (auto& row : FRows) {
    row.Comment = memory.Pending(CommitCommentPlace(row.FileName));
    anyOwn = anyOwn || !row.Comment.empty();
  }
  if (!FRows.empty()) TMemoIndividualComment->ChangeValue(ToWx(FRows.front().Comment));
  const auto summary = memory.Pending(CommitCommentPlace());
  TMemoSummaryComments->ChangeValue(ToWx(summary));
  if (summary.empty() || anyOwn) return;
  TCheckBoxSummaryComment->SetValue(true);  // as when it was typed
  TCheckboxIndividualComment->SetValue(false);
}

void TCommitBrowser::RememberComments() {
  individual_.Update();  // the deferred calls may be pending
  summary_.Update();
  TCommentMemory memory(projectFile_);
  const auto* current = CurrentRow();
  for (const auto& row : FRows)
    memory.RecordTyped(CommitCommentPlace(row.FileName),
                       &row == current ? FromWx(TMemoIndividualComment->GetValue()) : row.Comment);
  memory.RecordTyped(CommitCommentPlace(), FromWx(TMemoSummaryComments->GetValue()));
  memory.Save();
}

void TCommitBrowser::TMemoIndividualCommentChange(wxCommandEvent&) {
  CallAfter([this] { individual_.Update(); });  // deferred, because GTK is still processing the change
  TCheckBoxSummaryComment->SetValue(false);
  TCheckboxIndividualComment->SetValue(true);
}

void TCommitBrowser::TMemoSummaryCommentsChange(wxCommandEvent&) {
  CallAfter([this] { summary_.Update(); });
  TCheckboxIndividualComment->SetValue(false);
  TCheckBoxSummaryComment->SetValue(true);
}

void TCommitBrowser::TCheckboxIndividualCommentClick(wxCommandEvent&) {
  TCheckBoxSummaryComment->SetValue(!TCheckboxIndividualComment->GetValue());
}

void TCommitBrowser::TCheckBoxSummaryCommentClick(wxCommandEvent&) {
  TCheckboxIndividualComment->SetValue(!TCheckBoxSummaryComment->GetValue());
}

void TCommitBrowser::TCommitPageControlChange(wxBookCtrlEvent& event) {
  event.Skip();
  if (TCommitPageControl->GetSelection() != 0) HideActivities();
}

// ------------------------------------------------------------------------------------------------ buttons

bool TCommitBrowser::RunShowingErrors(const std::function<void()>& command) {
  return RunCatching(command, [this](const std::exception& error) {
    FExpert->Ui.ShowMsgDialog(sCommitBrowserCaption, error.what(), metError);
  });
}

void TCommitBrowser::TButtonShowDiffClick(wxCommandEvent&) {
  if (const auto* row = CurrentRow()) RunShowingErrors([&] { ShowDiff(*FExpert, row->FileName); });
}

void TCommitBrowser::TButtonShowHistoryClick(wxCommandEvent&) {
  if (const auto* row = CurrentRow()) RunShowingErrors([&] { ShowHistory(*FExpert, row->FileName); });
}

void TCommitBrowser::TButtonCancelClick(wxCommandEvent&) { CloseWith(mrCancel); }

void TCommitBrowser::TButtonCommitClick(wxCommandEvent&) {
  RememberComments();
  const TCommitComments comments{TCheckboxIndividualComment->GetValue(),
                                 FromWx(TMemoSummaryComments->GetValue())};
  SetBusy(true);
  const bool done = RunShowingErrors([&] {
    RunCommit(*FExpert, FRows, comments, std::make_unique<TProgressLine>(*progress_, FRows.size()));
  });
  SetBusy(false);
  if (done)
    CloseWith(mrOk);
  else
    TButtonCommit->SetFocus();
}

// Windows of a provider run event loops: this window must not accept input meanwhile.
void TCommitBrowser::SetBusy(bool busy) {
  HideActivities();
  busy_ = busy;
  for (wxWindow* control :
       std::initializer_list<wxWindow*>{TCommitPageControl, HelpButton, TButtonCancel, TButtonCommit})
    control->Enable(!busy);
}

void TCommitBrowser::CloseWith(int modalResult) {
  if (busy_) return;
  if (modalResult == mrCancel) RememberComments();
  HideActivities();
  TModalForm::CloseWith(modalResult);
}

}  // namespace kestrel::addin
