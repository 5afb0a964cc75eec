// The dialog for choosing a project; its model is ProjectChoice.
#pragma once

#include <wx/wx.h>

#include "common/windows/FolderTree.h"
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
  /// Updates message and buttons.
  void ShowState();

  ProjectChoice& choice_;
  wxTextCtrl* user_ = nullptr;
  wxComboBox* repository_ = nullptr;
  wxButton* connect_ = nullptr;
  wxButton* newRepository_ = nullptr;
  FolderTree* tree_ = nullptr;
  wxButton* newFolder_ = nullptr;
  wxStaticBitmap* icon_ = nullptr;
  wxStaticText* message_ = nullptr;
};

}  // namespace kestrel::svnscc
