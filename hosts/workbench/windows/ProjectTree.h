// The project tree: group, projects, units and their forms.
#pragma once

#include <wx/treectrl.h>

#include <functional>
#include <set>
#include <string>

#include "workbench/model/Workspace.h"

namespace kestrel::workbench {

class TProjectTree final : public wxTreeCtrl {
 public:
  struct THooks {
    std::function<void(const std::string& fileName)> Open;
    /// With the commands for the selected node; `fileName` is that of the node.
    std::function<void(wxMenu& menu, const std::string& fileName)> FillContextMenu;
  };
  TProjectTree(wxWindow* parent, TWorkspace& workspace, THooks hooks);

  /// Shows the workspace's projects as they are now; keeps what was expanded and selected.
  void Rebuild();
  /// The project that the selected node is or belongs to, or nullptr.
  TProject* SelectedProject();
  /// The selected module's index in that project, or -1.
  int SelectedModule();

 private:
  struct TNode;
  TNode* NodeOf(const wxTreeItemId& item) const;
  wxTreeItemId AddNode(const wxTreeItemId& parent, const std::string& label, int icon, TNode* node);
  void AddProject(const wxTreeItemId& parent, TProject& project);
  void FillProject(const wxTreeItemId& item, TProject& project);
  void OpenSelected();

  TWorkspace& workspace_;
  THooks hooks_;
  std::set<std::string> collapsed_;
};

}  // namespace kestrel::workbench
