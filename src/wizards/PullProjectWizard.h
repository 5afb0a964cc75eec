// The wizard that fetches a provider project into a local directory.
#pragma once

#include "wizards/PullProjectController.h"
#include "wizards/WizardForm.h"

class wxCheckBox;
class wxDirDialog;

namespace kestrel::addin {

class TPullProjectWizard final : public TWizardForm {
 public:
  /// `expert` is borrowed.
  explicit TPullProjectWizard(TCommandContext& expert);

  void TargetDirectoryChange(wxCommandEvent& event);
  void TargetDirectoryBrowserButtonClick(wxCommandEvent& event);
  void BrowseForTargetFolderBeforeExecute(wxDirDialog& dialog);
  void BrowseForTargetFolderAccept(const wxDirDialog& dialog);
  void TargetDirectoryMouseMove(wxMouseEvent& event);
  void Page3PanelMouseMove(wxMouseEvent& event);
  /// The project file that the user wants to open; empty for none.
  std::string FileToOpen() const;

  wxStaticText* DirectionLabelSelectTargetDirectory;
  wxTextCtrl* TargetDirectory;
  wxButton* TargetDirectoryBrowserButton;
  wxStaticText* Label1;
  wxCheckBox* cbOpenProject;

 private:
  void CreateTargetPage();
  void CreateStatusPage();
  void BrowseForTargetFolder();
  void UpdateControls() override;
  wxWindow* FirstControl(int panel) const override;

  TPullProjectController controller_;
  wxStaticText* noteLabel_;
  wxStaticText* targetLabel_;
};

}  // namespace kestrel::addin
