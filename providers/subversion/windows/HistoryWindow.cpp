#include "subversion/windows/HistoryWindow.h"

#include <wx/splitter.h>

#include "common/windows/TextWindow.h"
#include "host/WxText.h"
#include "subversion/commands/CommandStrings.h"
#include "subversion/commands/GetRevision.h"
#include "subversion/svn/LocalStatus.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"

namespace svnscc {

HistoryWindow::HistoryWindow(wxWindow* parent, ProviderContext& context, History& history, std::string path,
                             std::string name, bool isFolder)
    : ToolWindow(parent, Format(sHistoryTitle.Text, {name})),
      context_(context),
      history_(history),
      path_(std::move(path)),
      name_(std::move(name)),
      isFolder_(isFolder) {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(8);
  auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  list_ = new RowList(splitter, "revisions",
                      {{sRevisionColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sDateColumn, 150},
                       {sUserColumn, 110},
                       {sCommentColumn, 420}},
                      [this](std::size_t row, std::size_t column) -> std::string {
                        const Revision& revision = history_.Revisions().at(row);
                        switch (column) {
                          case 0:
                            return std::to_string(revision.Number);
                          case 1:
                            return LocalTime(revision.When);
                          case 2:
                            return revision.Author;
                          default:
                            return FirstLine(revision.Comment);
                        }
                      });
  comment_ = new wxTextCtrl(splitter, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                            wxTE_MULTILINE | wxTE_READONLY | wxTE_WORDWRAP);
  comment_->SetName("comment");
  splitter->SetMinimumPaneSize(FromDIP(60));
  splitter->SetSashGravity(1);
  splitter->SplitHorizontally(list_, comment_, FromDIP(-110));
  all->Add(splitter, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  message_ = new wxStaticText(this, wxID_ANY, wxEmptyString);
  message_->SetName("message");
  all->Add(message_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateButtons(), wxSizerFlags().Expand().Border(wxALL, gap));
  UseSizer(all, {820, 520}, {480, 320});

  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowState(); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { ShowTextOf(); });
  list_->SetRows(history_.Revisions().size());
  list_->Select(0);
  list_->SetFocus();
  ShowState();
}

wxSizer* HistoryWindow::CreateButtons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  text_ = AddButton(row, sShowTextButton, [this] { ShowTextOf(); });
  previous_ = AddButton(row, sComparePreviousButton, [this] { CompareWithPrevious(); });
  local_ = AddButton(row, sCompareLocalButton, [this] { CompareWithLocal(); });
  get_ = AddButton(row, sGetRevisionButton, [this] { Get(); });
  more_ = AddButton(row, sMoreButton, [this] { More(); });
  for (wxButton* button : {text_, previous_, local_, get_}) button->Show(!isFolder_);
  for (wxButton* button : {local_, get_}) button->Show(!isFolder_ && !path_.empty());
  AddClose(row);
  return row;
}

void HistoryWindow::ShowState() {
  const auto& revisions = history_.Revisions();
  const bool chosen = list_->Selected() >= 0;
  comment_->ChangeValue(chosen ? ToWx(revisions.at(Row()).Comment) : wxString());
  const auto count = static_cast<long long>(revisions.size());
  message_->SetLabel(ToWx(history_.HasMore() ? Format(sMoreRevisions.Text, {count})
                          : count == 1       ? std::string(sOneRevision)
                                             : Format(sRevisions.Text, {count})));
  text_->Enable(chosen);
  previous_->Enable(chosen && (Row() + 1 < revisions.size() || history_.HasMore()));
  local_->Enable(chosen && IsOnDisk(path_));
  get_->Enable(chosen);
  more_->Enable(history_.HasMore());
}

template <class Body>
void HistoryWindow::Try(Body&& body) {
  if (list_->Selected() < 0) return;
  try {
    const wxBusyCursor busy;
    body();
  } catch (const std::exception& exception) {
    ShowError(this, sWindowsTitle, exception.what());
  }
}

DiffSide HistoryWindow::SideOf(std::size_t row) {
  const Revision& revision = history_.Revisions().at(row);
  return {Format(sRevisionBy.Text,
                 {static_cast<long long>(revision.Number), LocalTime(revision.When), revision.Author}),
          history_.TextOf(row)};
}

void HistoryWindow::ShowTextOf() {
  if (isFolder_) return;
  std::optional<DiffSide> side;
  Try([&] { side = SideOf(Row()); });
  if (side) ShowTextWindow(this, name_ + ", " + side->Title, side->Text);
}

void HistoryWindow::CompareWithPrevious() {
  std::optional<DiffSide> left;
  std::optional<DiffSide> right;
  Try([&] {
    if (Row() + 1 == history_.Revisions().size()) More();
    left = SideOf(Row() + 1);
    right = SideOf(Row());
  });
  if (right) Compare(std::move(*left), std::move(*right));
}

void HistoryWindow::CompareWithLocal() {
  std::optional<DiffSide> left;
  std::optional<DiffSide> right;
  Try([&] {
    left = SideOf(Row());
    right = DiffSide{sOnDisk, ReadLocalContents(path_)};
  });
  if (right) Compare(std::move(*left), std::move(*right));
}

void HistoryWindow::Compare(DiffSide left, DiffSide right) {
  DiffWindow(this, name_, std::move(left), std::move(right), {}).ShowModal();
}

void HistoryWindow::Get() {
  Try([this] {
    const auto revision = history_.Revisions().at(Row()).Number;
    const bool edited = ReadLocalStatus(context_, path_).Differs;
    const std::string question =
        Format(edited ? sReplaceEdits.Text : sReplaceFile.Text, {name_, static_cast<long long>(revision)});
    wxMessageDialog ask(
        this, ToWx(question), ToWx(sGetRevisionTitle),
        wxYES_NO | (edited ? wxNO_DEFAULT | wxICON_WARNING : wxYES_DEFAULT | wxICON_QUESTION));
    ask.SetYesNoLabels(ToWx(sReplaceButton), ToWx(sKeepButton));
    if (ask.ShowModal() != wxID_YES) return;
    changedFile_ = true;  // a failure may come after the file was touched
    GetRevision(context_, path_, revision);
    message_->SetLabel(ToWx(Format(sGotRevision.Text, {static_cast<long long>(revision), name_})));
  });
}

void HistoryWindow::More() {
  Try([this] {
    history_.LoadMore();
    list_->SetRows(history_.Revisions().size());
    list_->SetFocus();
    ShowState();
  });
}

scc::Long ShowHistory(ProviderContext& context, scc::WindowHandle parent, Names names) {
  RequireWindows();
  if (names.empty()) throw Failure(scc::SCC_E_FILENOTCONTROLLED, sNoFileNamed);
  const ControlledNode node = RequireControlled(context, names.front());
  History history(context.Svn(), node.Place);
  history.LoadMore();
  const bool isFolder =
      FetchNodeInfo(context.Svn(), node.Place, Numbered(history.Revisions().at(0).Number)).IsFolder;
  HistoryWindow window(ParentFor(parent), context, history, node.IsLocal() ? node.Path : "",
                       context.Label(node.Path), isFolder);
  window.ShowModal();
  return window.HasChangedFile() ? scc::SCC_I_RELOADFILE : static_cast<scc::Long>(scc::SCC_OK);
}

}  // namespace svnscc
