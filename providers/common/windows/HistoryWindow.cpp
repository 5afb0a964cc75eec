#include "common/windows/HistoryWindow.h"

#include <wx/splitter.h>

#include "common/windows/TextWindow.h"
#include "common/windows/WindowStrings.h"
#include "toolkit/WxText.h"

namespace kestrel {

HistoryWindow::HistoryWindow(wxWindow* parent, const std::string& provider, HistorySource& source,
                             std::string name)
    : ToolWindow(parent, Format(sHistoryTitle.Text, {name})),
      provider_(provider),
      source_(source),
      name_(std::move(name)) {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(8);
  auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  list_ = new RowList(splitter, "revisions",
                      {{sRevisionColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sDateColumn, 150},
                       {sUserColumn, 110},
                       {sCommentColumn, 420}},
                      [this](std::size_t row, std::size_t column) -> std::string {
                        const auto revision = source_.At(row);
                        switch (column) {
                          case 0:
                            return revision.Name;
                          case 1:
                            return revision.Date;
                          case 2:
                            return revision.User;
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
  list_->SetRows(source_.Count());
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
  for (wxButton* button : {text_, previous_, local_, get_}) button->Show(!source_.IsFolder());
  for (wxButton* button : {local_, get_}) button->Show(!source_.IsFolder() && source_.HasLocalFile());
  AddClose(row);
  return row;
}

void HistoryWindow::ShowState() {
  const bool chosen = list_->Selected() >= 0;
  comment_->ChangeValue(chosen ? ToWx(source_.At(Row()).Comment) : wxString());
  const auto count = static_cast<long long>(source_.Count());
  message_->SetLabel(ToWx(source_.HasMore() ? Format(sMoreRevisions.Text, {count})
                          : count == 1      ? std::string(sOneRevision)
                                            : Format(sRevisions.Text, {count})));
  text_->Enable(chosen);
  previous_->Enable(chosen && (Row() + 1 < source_.Count() || source_.HasMore()));
  local_->Enable(chosen && source_.HasLocalFile() && source_.IsOnDisk());
  get_->Enable(chosen);
  more_->Enable(source_.HasMore());
}

template <class Body>
void HistoryWindow::RunAndShowError(Body&& body) {
  if (list_->Selected() < 0) return;
  try {
    const wxBusyCursor busy;
    body();
  } catch (const std::exception& exception) {
    ShowError(this, provider_, exception.what());
  }
}

DiffSide HistoryWindow::SideOf(std::size_t row) {
  const auto revision = source_.At(row);
  return {Format(sRevisionBy.Text, {revision.Name, revision.Date, revision.User}),
          source_.FetchContents(row)};
}

void HistoryWindow::ShowTextOf() {
  if (source_.IsFolder()) return;
  std::optional<DiffSide> side;
  RunAndShowError([&] { side = SideOf(Row()); });
  if (side) ShowTextWindow(this, name_ + ", " + side->Title, side->Text);
}

void HistoryWindow::CompareWithPrevious() {
  Compare([this] {
    if (Row() + 1 == source_.Count()) More();
    return Sides{SideOf(Row() + 1), SideOf(Row())};
  });
}

void HistoryWindow::CompareWithLocal() {
  Compare([this] { return Sides{SideOf(Row()), DiffSide{sOnDisk, source_.ReadLocalContents()}}; });
}

void HistoryWindow::Compare(const std::function<Sides()>& fetch) {
  std::optional<Sides> sides;
  RunAndShowError([&] { sides = fetch(); });
  if (!sides) return;
  auto& [left, right] = *sides;
  DiffWindow(this, name_, std::move(left), std::move(right), {}, source_.Matcher()).ShowModal();
}

void HistoryWindow::Get() {
  RunAndShowError([this] {
    const bool edited = source_.IsEdited();
    const std::string question =
        Format(edited ? sReplaceEdits.Text : sReplaceFile.Text, {name_, source_.At(Row()).Name});
    wxMessageDialog ask(
        this, ToWx(question), ToWx(sGetRevisionTitle),
        wxYES_NO | (edited ? wxNO_DEFAULT | wxICON_WARNING : wxYES_DEFAULT | wxICON_QUESTION));
    ask.SetYesNoLabels(ToWx(sReplaceButton), ToWx(sKeepButton));
    if (ask.ShowModal() != wxID_YES) return;
    changedFile_ = true;  // a failure may come after the file was touched
    message_->SetLabel(ToWx(source_.ReplaceLocalFile(Row())));
  });
}

void HistoryWindow::More() {
  RunAndShowError([this] {
    source_.LoadMore();
    list_->SetRows(source_.Count());
    list_->SetFocus();
    ShowState();
  });
}

}  // namespace kestrel
