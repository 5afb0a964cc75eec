#include "common/windows/RepositoryWindow.h"

#include <wx/accel.h>
#include <wx/numformatter.h>
#include <wx/splitter.h>

#include "common/text/RepositoryPath.h"
#include "common/windows/PropertiesWindow.h"
#include "common/windows/TextWindow.h"
#include "common/windows/WindowStrings.h"
#include "toolkit/WxText.h"
#include "toolkit/WxWheel.h"

namespace kestrel {
namespace {

/// A path for display: the root is "/".
std::string DisplayName(const std::string& path) { return path.empty() ? "/" : path; }

std::string Cell(const RepositorySource::Entry& entry, std::size_t column) {
  switch (column) {
    case 0:
      return entry.Name + (entry.IsFolder ? "/" : "");
    case 1:
      return entry.Revision;
    case 2:
      return entry.User;
    case 3:
      return entry.Date;
    case 4:
      return entry.IsFolder
                 ? ""
                 : wxNumberFormatter::ToString(static_cast<wxLongLong_t>(entry.Size)).utf8_string();
    default:
      return entry.LockOwner;
  }
}

}  // namespace

RepositoryWindow::RepositoryWindow(wxWindow* parent, const std::string& provider, const std::string& title,
                                   RepositorySource& source, const std::string& address)
    : ToolWindow(parent, title), provider_(provider), source_(source) {
  auto* all = new wxBoxSizer(wxVERTICAL);
  const int gap = FromDIP(8);
  all->Add(CreateAddress(address), wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateLists(), wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  message_ = new wxStaticText(this, wxID_ANY, wxEmptyString, wxDefaultPosition, wxDefaultSize,
                              wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_END);
  message_->SetName("message");
  all->Add(message_, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxTOP, gap));
  all->Add(CreateButtons(), wxSizerFlags().Expand().Border(wxALL, gap));
  UseSizer(all, {960, 580}, {560, 360});
  BindKeys();
  address_->SetFocus();
  if (!address.empty()) Open();
  ShowState();
}

wxSizer* RepositoryWindow::CreateAddress(const std::string& address) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, ToWx(sRepositoryLabel)),
           wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(6)));
  wxArrayString recent;
  for (const auto& url : source_.RecentAddresses()) recent.Add(ToWx(url));
  address_ = new wxComboBox(this, wxID_ANY, ToWx(address), wxDefaultPosition, wxDefaultSize, recent,
                            wxTE_PROCESS_ENTER);
  address_->SetName("address");
  IgnoreWheel(*address_);
  row->Add(address_, wxSizerFlags(1).CenterVertical().Border(wxRIGHT, FromDIP(6)));
  AddButton(row, sOpenButton, [this] { Open(); });
  address_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { Open(); });
  address_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { Open(); });
  return row;
}

wxWindow* RepositoryWindow::CreateLists() {
  auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  tree_ = new FolderTree(splitter, [this](const std::string& path) { return FetchFolders(path); });
  list_ = new RowList(splitter, "entries",
                      {{sNameColumn, 200},
                       {sRevisionColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sUserColumn, 90},
                       {sDateColumn, 145},
                       {sSizeColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sLockColumn, 115}},
                      [this](std::size_t row, std::size_t column) { return Cell(entries_.at(row), column); });
  splitter->SetMinimumPaneSize(FromDIP(120));
  splitter->SplitVertically(tree_, list_, FromDIP(230));
  tree_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
    if (event.GetItem().IsOk()) ShowFolder(tree_->PathOf(event.GetItem()));
  });
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowState(); });
  list_->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { ShowState(); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { Activate(); });
  return splitter;
}

wxSizer* RepositoryWindow::CreateButtons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  text_ = AddButton(row, sShowTextButton, [this] { ShowTextOf(); });
  history_ = AddButton(row, sHistoryButton, [this] { ShowHistoryOf(); });
  properties_ = AddButton(row, sPropertiesButton, [this] { ShowPropertiesOf(); });
  refresh_ = AddButton(row, sRefreshButton, [this] { Reload(); });
  refresh_->SetToolTip(ToWx(sRefreshHint));
  AddClose(row);
  return row;
}

void RepositoryWindow::BindKeys() {
  const wxAcceleratorEntry refresh(wxACCEL_NORMAL, WXK_F5, refresh_->GetId());
  SetAcceleratorTable(wxAcceleratorTable(1, &refresh));
  list_->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
    if (event.GetKeyCode() == WXK_BACK && !folder_.empty())
      GoTo(PathAbove(folder_), folder_.substr(folder_.rfind('/') + 1));
    else
      event.Skip();
  });
}

template <class Body>
bool RepositoryWindow::RunAndShowError(Body&& body) {
  const wxBusyCursor busy;
  try {
    body();
    problem_.clear();
  } catch (const std::exception& exception) {
    problem_ = exception.what();
  }
  ShowState();
  return problem_.empty();
}

void RepositoryWindow::Open() {
  std::string path;
  list_->SetRows(0);
  tree_->DeleteAllItems();
  if (!RunAndShowError([&] { path = source_.Open(address_->GetValue().utf8_string()); })) return;
  tree_->ShowRoot(source_.Address());
  GoTo(path);
  list_->SetFocus();
}

void RepositoryWindow::Reload() {
  const std::string folder = folder_;
  const auto* entry = Chosen();
  const std::string name = entry != nullptr ? entry->Name : "";
  list_->SetRows(0);
  source_.Refresh();
  tree_->ShowRoot(source_.Address());
  GoTo(folder, name);
}

std::vector<std::string> RepositoryWindow::FetchFolders(const std::string& path) {
  std::vector<std::string> names;
  RunAndShowError([&] {
    for (const auto& entry : source_.FetchEntries(path))
      if (entry.IsFolder) names.push_back(entry.Name);
  });
  return names;
}

void RepositoryWindow::GoTo(const std::string& path, const std::string& entry) {
  const std::string rest = tree_->SelectPath(path);
  ShowFolder(tree_->PathOf(tree_->GetSelection()));
  if (list_->GetItemCount() == 0) return;
  const std::string& wanted = rest.empty() ? entry : rest;
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [&](const auto& e) { return e.Name == wanted; });
  list_->Select(found != entries_.end() ? static_cast<long>(found - entries_.begin()) : 0);
  ShowState();
}

void RepositoryWindow::ShowFolder(const std::string& path) {
  list_->SetRows(0);
  folder_ = path;
  RunAndShowError([&] {
    entries_ = source_.FetchEntries(path);
    list_->SetRows(entries_.size());
  });
}

const RepositorySource::Entry* RepositoryWindow::Chosen() const {
  const long row = list_->Selected();
  return row >= 0 ? &entries_.at(static_cast<std::size_t>(row)) : nullptr;
}

std::string RepositoryWindow::ChosenPath() const {
  const auto* entry = Chosen();
  return entry != nullptr ? PathBelow(folder_, entry->Name) : folder_;
}

void RepositoryWindow::ShowState() {
  const bool open = source_.IsOpen() && problem_.empty();
  const auto* entry = open ? Chosen() : nullptr;
  text_->Enable(entry != nullptr && !entry->IsFolder);
  for (wxButton* button : {history_, properties_}) button->Enable(open);
  refresh_->Enable(source_.IsOpen());
  const int count = list_->GetItemCount();
  const std::string counted = count == 0   ? sEmptyFolder.str()
                              : count == 1 ? sOneEntry.str()
                                           : Format(sEntries.Text, {static_cast<long long>(count)});
  const std::string text = !problem_.empty()   ? problem_
                           : !source_.IsOpen() ? sOpenARepository.str()
                                               : DisplayName(folder_) + ": " + counted;
  message_->SetLabel(wxControl::EscapeMnemonics(ToWx(text)));
  message_->SetToolTip(ToWx(text));
}

void RepositoryWindow::Activate() {
  const auto* entry = Chosen();
  if (entry == nullptr) return;
  if (entry->IsFolder)
    GoTo(ChosenPath());
  else
    ShowTextOf();
}

void RepositoryWindow::ShowTextOf() {
  Contents contents;
  const std::string path = ChosenPath();
  if (RunAndShowError([&] { contents = source_.FetchContents(path); })) ShowTextWindow(this, path, contents);
}

void RepositoryWindow::ShowHistoryOf() {
  const std::string path = ChosenPath();
  const auto* entry = Chosen();
  const bool isFolder = entry == nullptr || entry->IsFolder;
  std::unique_ptr<HistorySource> history;
  if (RunAndShowError([&] { history = source_.FetchHistory(path, isFolder); }))
    HistoryWindow(this, provider_, *history, DisplayName(path)).ShowModal();
}

void RepositoryWindow::ShowPropertiesOf() {
  const std::string path = ChosenPath();
  NodeProperties properties;
  if (RunAndShowError([&] { properties = source_.FetchProperties(path); }))
    PropertiesWindow(this, DisplayName(path), std::move(properties)).ShowModal();
}

}  // namespace kestrel
