#include "common/windows/FolderTree.h"

#include "common/text/RepositoryPath.h"
#include "toolkit/WxText.h"

namespace kestrel {
namespace {

struct FolderData : wxTreeItemData {
  explicit FolderData(std::string path) : Path(std::move(path)) {}
  std::string Path;
};

}  // namespace

FolderTree::FolderTree(wxWindow* parent, Fetch fetch)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_DEFAULT_STYLE | wxTR_SINGLE | wxTR_LINES_AT_ROOT),
      fetch_(std::move(fetch)) {
  SetName("folders");
  Bind(wxEVT_TREE_ITEM_EXPANDING, [this](wxTreeEvent& event) { Fill(event.GetItem()); });
}

void FolderTree::ShowRoot(const std::string& label) {
  DeleteAllItems();
  const auto root = AddRoot(wxControl::EscapeMnemonics(ToWx(label)), -1, -1, new FolderData(""));
  SetItemHasChildren(root);
  Expand(root);
}

std::string FolderTree::PathOf(const wxTreeItemId& item) const {
  return static_cast<FolderData*>(GetItemData(item))->Path;
}

wxTreeItemId FolderTree::ChildNamed(const wxTreeItemId& parent, const wxString& name) const {
  wxTreeItemIdValue cookie = nullptr;
  auto child = GetFirstChild(parent, cookie);
  while (child.IsOk() && GetItemText(child) != name) child = GetNextChild(parent, cookie);
  return child;
}

void FolderTree::Fill(const wxTreeItemId& item) {
  const std::string path = PathOf(item);
  const bool isNew = GetChildrenCount(item, false) == 0;
  for (const auto& name : fetch_(path)) {
    if (!isNew && ChildNamed(item, ToWx(name)).IsOk()) continue;
    const auto child = AppendItem(item, ToWx(name), -1, -1, new FolderData(PathBelow(path, name)));
    SetItemHasChildren(child);  // unknown until it is expanded
  }
  if (GetChildrenCount(item, false) == 0) SetItemHasChildren(item, false);
}

std::string FolderTree::SelectPath(const std::string& path) {
  wxTreeItemId item = GetRootItem();
  std::string rest = path;
  while (!rest.empty()) {
    Expand(item);
    const std::string name = rest.substr(0, rest.find('/'));
    const auto child = ChildNamed(item, ToWx(name));
    if (!child.IsOk()) break;
    item = child;
    rest.erase(0, name.size() + 1);
  }
  SelectItem(item);
  EnsureVisible(item);
  return rest;
}

}  // namespace kestrel
