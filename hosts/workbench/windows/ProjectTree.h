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
    /// Adds the commands for the selected node, whose file is `fileName`.
    std::function<void(wxMenu& menu, const std::string& fileName)> FillContextMenu;
  };
  TProjectTree(wxWindow* parent, TWorkspace& workspace, THooks hooks);

  /// Shows the current projects; keeps the expanded nodes and the selection.
  void Rebuild();
  /// The project that contains, or is, the selected node; null if there is none.
  TProject* SelectedProject();
  /// The index of the selected module in that project; -1 if there is none.
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
