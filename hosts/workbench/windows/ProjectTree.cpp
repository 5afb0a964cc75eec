#include "workbench/windows/ProjectTree.h"

#include <wx/menu.h>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

namespace {

constexpr TIcon kTreeIcons[] = {TIcon::Group, TIcon::Project, TIcon::ActiveProject,
                                TIcon::Unit,  TIcon::Form,    TIcon::Module};
/// In the list of images, which has each icon with each mark.
int ImageOf(TIcon icon, TFileMark mark) {
  return static_cast<int>(icon) * kFileMarks + static_cast<int>(mark);  // TIcon begins with kTreeIcons
}

TIcon ModuleIcon(const std::string& fileName) {
  const std::string extension = ExtractFileExt(fileName);
  if (SameText(extension, kUnitExt)) return TIcon::Unit;
  return SameText(extension, kFormExt) ? TIcon::Form : TIcon::Module;
}

}  // namespace

struct TProjectTree::TNode final : wxTreeItemData {
  TNode(std::string file, std::string project = {}, int module = -1)
      : File(std::move(file)), Project(std::move(project)), Module(module) {}
  TIcon Icon{};
  std::string File;
  std::string Project;  // empty for the group
  int Module;           // in the project; -1 for the project itself
  bool Filled = false;
};

TProjectTree::TProjectTree(wxWindow* parent, TWorkspace& workspace, THooks hooks)
    : wxTreeCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                 wxTR_HAS_BUTTONS | wxTR_LINES_AT_ROOT | wxTR_SINGLE | wxTR_NO_LINES | wxBORDER_NONE),
      workspace_(workspace),
      hooks_(std::move(hooks)) {
  SetName(ToWx(sProjectTreeCaption));
  wxVector<wxBitmapBundle> images;
  for (const TIcon icon : kTreeIcons)
    for (int mark = 0; mark < kFileMarks; ++mark)
      images.push_back(RowImage(static_cast<TFileMark>(mark), icon));
  SetImages(images);
  Bind(wxEVT_TREE_ITEM_ACTIVATED, [this](wxTreeEvent& event) {
    event.Skip();
    OpenSelected();
  });
  Bind(wxEVT_TREE_ITEM_EXPANDING, [this](wxTreeEvent& event) {
    TNode* node = NodeOf(event.GetItem());
    collapsed_.erase(node->File);
    if (auto* project = dynamic_cast<TProject*>(workspace_.Modules().Find(node->Project)))
      FillProject(event.GetItem(), *project);
  });
  Bind(wxEVT_TREE_ITEM_COLLAPSED,
       [this](wxTreeEvent& event) { collapsed_.insert(NodeOf(event.GetItem())->File); });
  Bind(wxEVT_TREE_ITEM_GETTOOLTIP, [this](wxTreeEvent& event) {
    const std::string& file = NodeOf(event.GetItem())->File;
    event.SetToolTip(FileHint(file, hooks_.StateOf(file)));
  });
  Bind(wxEVT_TREE_ITEM_MENU, [this](wxTreeEvent& event) {
    SelectItem(event.GetItem());
    wxMenu menu;
    hooks_.FillContextMenu(menu, NodeOf(event.GetItem())->File);
    PopupMenu(&menu, event.GetPoint());
  });
}

TProjectTree::TNode* TProjectTree::NodeOf(const wxTreeItemId& item) const {
  return item.IsOk() ? static_cast<TNode*>(GetItemData(item)) : nullptr;
}

wxTreeItemId TProjectTree::AddNode(const wxTreeItemId& parent, const std::string& label, TIcon icon,
                                   TNode* node) {
  node->Icon = icon;
  const wxString text = ToWx(label);
  const int image = ImageOf(icon, hooks_.StateOf(node->File).Mark);
  const auto row =
      parent.IsOk() ? AppendItem(parent, text, image, image, node) : AddRoot(text, image, image, node);
  rows_.emplace(FoldCase(node->File), row);
  return row;
}

void TProjectTree::ShowStates(const std::vector<TFileState>& states) {
  Freeze();
  for (const auto& state : states) {
    const auto [first, last] = rows_.equal_range(FoldCase(state.FileName));
    for (auto row = first; row != last; ++row) {
      const int image = ImageOf(NodeOf(row->second)->Icon, state.Mark);
      // The toolkit measures the row's text after each change.
      for (const auto which : {wxTreeItemIcon_Normal, wxTreeItemIcon_Selected})
        if (GetItemImage(row->second, which) != image) SetItemImage(row->second, image, which);
    }
  }
  Thaw();
}

void TProjectTree::Rebuild() {
  const TNode* selected = NodeOf(GetSelection());
  const std::string selectedFile = selected ? selected->File : std::string();
  Freeze();
  rows_.clear();
  DeleteAllItems();
  if (const TProjectGroup* group = workspace_.Group()) {
    const auto root =
        AddNode({}, ExtractFileName(group->FileName()), TIcon::Group, new TNode(group->FileName()));
    for (TProject* project : group->Projects()) AddProject(root, *project);
    Expand(root);
    // Only top-level nodes: searching modules would fill every project.
    wxTreeItemIdValue cookie;
    for (auto item = GetFirstChild(root, cookie); item.IsOk(); item = GetNextChild(root, cookie))
      if (NodeOf(item)->File == selectedFile) SelectItem(item);
  }
  Thaw();
}

void TProjectTree::AddProject(const wxTreeItemId& parent, TProject& project) {
  const bool active = workspace_.ActiveProject() == &project;
  const std::string name = ExtractFileName(project.FileName());
  const auto item = AddNode(parent, name, active ? TIcon::ActiveProject : TIcon::Project,
                            new TNode(project.FileName(), project.FileName()));
  SetItemBold(item, active);
  SetItemHasChildren(item, project.GetModuleCount() > 0);
  if (active && !collapsed_.contains(project.FileName())) Expand(item);
}

void TProjectTree::FillProject(const wxTreeItemId& item, TProject& project) {
  TNode* node = NodeOf(item);
  if (node->Module >= 0 || std::exchange(node->Filled, true)) return;
  for (int i = 0; i < project.GetModuleCount(); ++i) {
    const std::string file = project.ModuleFileName(i);
    const std::string shown = project.Definition().Get().Items()[static_cast<std::size_t>(i)];
    const auto module = AddNode(item, shown, ModuleIcon(file), new TNode(file, project.FileName(), i));
    const std::string form = ChangeFileExt(file, kFormExt);
    if (SameText(ExtractFileExt(file), kUnitExt) && FileExists(form))
      AddNode(module, ExtractFileName(form), TIcon::Form, new TNode(form, project.FileName(), i));
  }
}

void TProjectTree::OpenSelected() {
  const TNode* node = NodeOf(GetSelection());
  if (node && node->Module >= 0) hooks_.Open(std::string(node->File));
}

TProject* TProjectTree::SelectedProject() {
  const TNode* node = NodeOf(GetSelection());
  return node ? dynamic_cast<TProject*>(workspace_.Modules().Find(node->Project)) : nullptr;
}

int TProjectTree::SelectedModule() {
  const TNode* node = NodeOf(GetSelection());
  return node ? node->Module : -1;
}

}  // namespace kestrel::workbench
