// The window for choosing a project; its rules are ProjectChoice's.
#pragma once

#include <wx/treectrl.h>
#include <wx/wx.h>

#include <map>

#include "subversion/project/ProjectChoice.h"

namespace kestrel::svnscc {

class ProjectDialog : public wxDialog {
 public:
  ProjectDialog(wxWindow* parent, ProjectChoice& choice);

 private:
  void CreateControls();
  wxSizer* CreateRepositoryRows();
  wxSizer* CreateFolderPart();
  wxSizer* CreateButtons();
  void BindEvents();

  void Connect();
  void MakeRepository();
  void MakeFolder();
  void FillTree();
  void FillFolder(const wxTreeItemId& item);
  /// Opens the tree down to `path` and selects it.
  void ShowPath(const std::string& path);
  wxTreeItemId AppendFolder(const wxTreeItemId& parent, const std::string& path, const std::string& name);
  std::map<std::string, wxTreeItemId> ChildrenOf(const wxTreeItemId& parent) const;
  /// Brings message and buttons in line with the choice.
  void ShowState();

  ProjectChoice& choice_;
  wxTextCtrl* user_ = nullptr;
  wxComboBox* repository_ = nullptr;
  wxButton* connect_ = nullptr;
  wxButton* newRepository_ = nullptr;
  wxTreeCtrl* tree_ = nullptr;
  wxButton* newFolder_ = nullptr;
  wxStaticBitmap* icon_ = nullptr;
  wxStaticText* message_ = nullptr;
};

}  // namespace kestrel::svnscc
