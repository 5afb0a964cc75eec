#include "subversion/windows/BrowserWindow.h"

#include <wx/accel.h>
#include <wx/numformatter.h>
#include <wx/splitter.h>

#include "common/windows/TextWindow.h"
#include "host/WxText.h"
#include "host/WxWheel.h"
#include "subversion/project/OpenProject.h"
#include "subversion/project/RecentRepositories.h"
#include "subversion/svn/Repository.h"
#include "subversion/windows/HistoryWindow.h"
#include "subversion/windows/PropertiesWindow.h"
#include "subversion/windows/ProviderWindowStrings.h"
#include "subversion/windows/ProviderWindows.h"

namespace svnscc {
namespace {

struct FolderData : wxTreeItemData {
  explicit FolderData(std::string path) : Path(std::move(path)) {}
  std::string Path;
};

std::string PathOf(wxTreeCtrl* tree, const wxTreeItemId& item) {
  return static_cast<FolderData*>(tree->GetItemData(item))->Path;
}

std::string Cell(const Entry& entry, std::size_t column) {
  switch (column) {
    case 0:
      return entry.Name + (entry.IsFolder ? "/" : "");
    case 1:
      return std::to_string(entry.ChangedRevision);
    case 2:
      return entry.ChangedBy;
    case 3:
      return LocalTime(entry.ChangedAt);
    case 4:
      return entry.IsFolder
                 ? ""
                 : wxNumberFormatter::ToString(static_cast<wxLongLong_t>(entry.Size)).utf8_string();
    default:
      return entry.Lock.Owner;
  }
}

}  // namespace

BrowserWindow::BrowserWindow(wxWindow* parent, ProviderContext& context, Browser& browser,
                             const std::string& address)
    : ToolWindow(parent, sBrowserTitle), context_(context), browser_(browser) {
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

wxSizer* BrowserWindow::CreateAddress(const std::string& address) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(new wxStaticText(this, wxID_ANY, ToWx(sRepositoryLabel)),
           wxSizerFlags().CenterVertical().Border(wxRIGHT, FromDIP(6)));
  wxArrayString recent;
  for (const auto& url : RecentRepositories()) recent.Add(ToWx(url));
  address_ = new wxComboBox(this, wxID_ANY, ToWx(ReadableUrl(address)), wxDefaultPosition, wxDefaultSize,
                            recent, wxTE_PROCESS_ENTER);
  address_->SetName("address");
  IgnoreWheel(*address_);
  row->Add(address_, wxSizerFlags(1).CenterVertical().Border(wxRIGHT, FromDIP(6)));
  AddButton(row, sOpenButton, [this] { Open(); });
  address_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { Open(); });
  address_->Bind(wxEVT_COMBOBOX, [this](wxCommandEvent&) { Open(); });
  return row;
}

wxWindow* BrowserWindow::CreateLists() {
  auto* splitter = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  tree_ = new wxTreeCtrl(splitter, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                         wxTR_DEFAULT_STYLE | wxTR_SINGLE | wxTR_LINES_AT_ROOT);
  tree_->SetName("folders");
  list_ = new RowList(splitter, "entries",
                      {{sNameColumn, 200},
                       {sRevisionColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sUserColumn, 90},
                       {sDateColumn, 145},
                       {sSizeColumn, 80, wxLIST_FORMAT_RIGHT},
                       {sLockColumn, 115}},
                      [this](std::size_t row, std::size_t column) {
                        return Cell(browser_.EntriesOf(folder_).at(row), column);
                      });
  splitter->SetMinimumPaneSize(FromDIP(120));
  splitter->SplitVertically(tree_, list_, FromDIP(230));
  tree_->Bind(wxEVT_TREE_ITEM_EXPANDING, [this](wxTreeEvent& event) { FillFolder(event.GetItem()); });
  tree_->Bind(wxEVT_TREE_SEL_CHANGED, [this](wxTreeEvent& event) {
    if (event.GetItem().IsOk()) ShowFolder(PathOf(tree_, event.GetItem()));
  });
  list_->Bind(wxEVT_LIST_ITEM_SELECTED, [this](wxListEvent&) { ShowState(); });
  list_->Bind(wxEVT_LIST_ITEM_DESELECTED, [this](wxListEvent&) { ShowState(); });
  list_->Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent&) { Activate(); });
  return splitter;
}

wxSizer* BrowserWindow::CreateButtons() {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  text_ = AddButton(row, sShowTextButton, [this] { ShowTextOf(); });
  history_ = AddButton(row, sHistoryButton, [this] { ShowHistoryOf(); });
  properties_ = AddButton(row, sPropertiesButton, [this] { ShowPropertiesOf(); });
  refresh_ = AddButton(row, sRefreshButton, [this] { Refresh(); });
  refresh_->SetToolTip(ToWx(sRefreshHint));
  AddClose(row);
  return row;
}

void BrowserWindow::BindKeys() {
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
bool BrowserWindow::Try(Body&& body) {
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

void BrowserWindow::Open() {
  std::string path;
  list_->SetRows(0);
  tree_->DeleteAllItems();
  if (!Try([&] { path = browser_.Open(address_->GetValue().utf8_string()); })) return;
  RememberRepository(ReadableUrl(browser_.Root()));
  FillTree();
  GoTo(path);
  list_->SetFocus();
}

void BrowserWindow::Refresh() {
  const std::string folder = folder_;
  const Entry* entry = Chosen();
  const std::string name = entry != nullptr ? entry->Name : "";
  list_->SetRows(0);
  browser_.Forget();
  FillTree();
  GoTo(folder, name);
}

void BrowserWindow::FillTree() {
  tree_->DeleteAllItems();
  const auto root = tree_->AddRoot(wxControl::EscapeMnemonics(ToWx(ReadableUrl(browser_.Root()))), -1, -1,
                                   new FolderData(""));
  tree_->SetItemHasChildren(root);
  tree_->Expand(root);
}

void BrowserWindow::FillFolder(const wxTreeItemId& item) {
  if (tree_->GetChildrenCount(item, false) > 0) return;
  const std::string path = PathOf(tree_, item);
  Try([&] {
    for (const Entry& entry : browser_.EntriesOf(path))
      if (entry.IsFolder) AppendFolder(item, PathBelow(path, entry.Name), entry.Name);
  });
  if (tree_->GetChildrenCount(item, false) == 0) tree_->SetItemHasChildren(item, false);
}

wxTreeItemId BrowserWindow::AppendFolder(const wxTreeItemId& parent, const std::string& path,
                                         const std::string& name) {
  const auto item = tree_->AppendItem(parent, ToWx(name), -1, -1, new FolderData(path));
  tree_->SetItemHasChildren(item);  // known when it is opened
  return item;
}

wxTreeItemId BrowserWindow::ChildNamed(const wxTreeItemId& parent, const std::string& name) const {
  wxTreeItemIdValue cookie = nullptr;
  auto child = tree_->GetFirstChild(parent, cookie);
  while (child.IsOk() && tree_->GetItemText(child) != ToWx(name)) child = tree_->GetNextChild(parent, cookie);
  return child;
}

void BrowserWindow::GoTo(const std::string& path, const std::string& entry) {
  wxTreeItemId item = tree_->GetRootItem();
  std::string rest = path;
  while (!rest.empty()) {
    tree_->Expand(item);
    const std::string name = rest.substr(0, rest.find('/'));
    const auto child = ChildNamed(item, name);
    if (!child.IsOk()) break;
    item = child;
    rest.erase(0, name.size() + 1);
  }
  tree_->SelectItem(item);
  tree_->EnsureVisible(item);
  ShowFolder(PathOf(tree_, item));
  if (list_->GetItemCount() == 0) return;
  const std::string& wanted = rest.empty() ? entry : rest;
  const auto& entries = browser_.EntriesOf(folder_);
  const auto found =
      std::find_if(entries.begin(), entries.end(), [&](const Entry& e) { return e.Name == wanted; });
  list_->Select(found != entries.end() ? static_cast<long>(found - entries.begin()) : 0);
  ShowState();
}

void BrowserWindow::ShowFolder(const std::string& path) {
  list_->SetRows(0);
  folder_ = path;
  Try([&] { list_->SetRows(browser_.EntriesOf(path).size()); });
}

const Entry* BrowserWindow::Chosen() const {
  const long row = list_->Selected();
  return row >= 0 ? &browser_.EntriesOf(folder_).at(static_cast<std::size_t>(row)) : nullptr;
}

std::string BrowserWindow::ChosenPath() const {
  const Entry* entry = Chosen();
  return entry != nullptr ? PathBelow(folder_, entry->Name) : folder_;
}

void BrowserWindow::ShowState() {
  const bool open = browser_.IsOpen() && problem_.empty();
  const Entry* entry = open ? Chosen() : nullptr;
  text_->Enable(entry != nullptr && !entry->IsFolder);
  for (wxButton* button : {history_, properties_}) button->Enable(open);
  refresh_->Enable(browser_.IsOpen());
  const int count = list_->GetItemCount();
  const std::string counted = count == 0   ? sEmptyFolder.str()
                              : count == 1 ? sOneEntry.str()
                                           : Format(sEntries.Text, {static_cast<long long>(count)});
  const std::string text = !problem_.empty()    ? problem_
                           : !browser_.IsOpen() ? sOpenARepository.str()
                                                : ToProjectName(folder_) + ": " + counted;
  message_->SetLabel(wxControl::EscapeMnemonics(ToWx(text)));
  message_->SetToolTip(ToWx(text));
}

void BrowserWindow::Activate() {
  const Entry* entry = Chosen();
  if (entry == nullptr) return;
  if (entry->IsFolder)
    GoTo(ChosenPath());
  else
    ShowTextOf();
}

void BrowserWindow::ShowTextOf() {
  Contents contents;
  const std::string path = ChosenPath();
  if (Try([&] { contents = FetchContents(browser_.Svn(), browser_.UrlAt(path), Newest()); }))
    ShowTextWindow(this, path, contents);
}

void BrowserWindow::ShowHistoryOf() {
  const std::string path = ChosenPath();
  const Entry* entry = Chosen();
  const bool isFolder = entry == nullptr || entry->IsFolder;
  History history(browser_.Svn(), browser_.UrlAt(path));
  if (Try([&] { history.LoadMore(); }))
    HistoryWindow(this, context_, history, "", ToProjectName(path), isFolder).ShowModal();
}

void BrowserWindow::ShowPropertiesOf() {
  const std::string path = ChosenPath();
  NodeProperties description;
  if (Try([&] { description = DescribeNode(browser_.Svn(), browser_.UrlAt(path)); }))
    PropertiesWindow(this, ToProjectName(path), std::move(description)).ShowModal();
}

namespace {

/// Where to begin: at the file named, else at the project, else where the user was last.
std::string AddressOf(ProviderContext& context, Names names) {
  if (!context.IsOpen()) {
    const auto recent = RecentRepositories();
    // A server that was used last may be out of reach, and waiting for it is not what was asked for.
    return !recent.empty() && recent.front().starts_with("file://") ? recent.front() : "";
  }
  const Project& project = context.CurrentProject();
  const std::string path = names.empty() ? "" : context.InsidePath(names.front());
  if (path.empty() || path == project.Folder) return project.Url;
  return UrlOf(project.Url, path.substr(project.Folder.size() + 1));
}

}  // namespace

scc::Long RunBrowser(ProviderContext& context, scc::WindowHandle parent, Names names) {
  RequireWindows();
  Browser browser(context.IsOpen() ? context.Svn().User() : SystemUser());
  BrowserWindow(ParentFor(parent), context, browser, AddressOf(context, names)).ShowModal();
  return scc::SCC_OK;
}

}  // namespace svnscc
