// The project tree: group, projects, units and their forms.
#pragma once

#include <wx/treectrl.h>

#include <functional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/FileStates.h"
#include "workbench/model/Workspace.h"
#include "workbench/windows/Icons.h"

namespace kestrel::workbench {

class TProjectTree final : public wxTreeCtrl {
 public:
  struct THooks {
    std::function<void(const std::string& fileName)> Open;
    /// Adds the commands for the selected node, whose file is `fileName`.
    std::function<void(wxMenu& menu, const std::string& fileName)> FillContextMenu;
    std::function<const TFileState&(const std::string& fileName)> StateOf;
  };
  TProjectTree(wxWindow* parent, TWorkspace& workspace, THooks hooks);

  /// Shows the current projects; keeps the expanded nodes and the selection.
  void Rebuild();
  /// Marks the rows of these files.
  void ShowStates(const std::vector<TFileState>& states);
  /// The project that contains, or is, the selected node; null if there is none.
  TProject* SelectedProject();
  /// The index of the selected module in that project; -1 if there is none.
  int SelectedModule();

 private:
  struct TNode;
  TNode* NodeOf(const wxTreeItemId& item) const;
  wxTreeItemId AddNode(const wxTreeItemId& parent, const std::string& label, TIcon icon, TNode* node);
  void AddProject(const wxTreeItemId& parent, TProject& project);
  void FillProject(const wxTreeItemId& item, TProject& project);
  void OpenSelected();

  TWorkspace& workspace_;
  THooks hooks_;
  std::set<std::string> collapsed_;
  std::unordered_multimap<std::string, wxTreeItemId> rows_;  // by folded file name
};

}  // namespace kestrel::workbench
