// The wizard that puts the current host project under source control.
#pragma once

#include "wizards/PlaceProjectController.h"
#include "wizards/WizardForm.h"

class wxCheckBox;

namespace kestrel::addin {

class TPlaceProjectWizard final : public TWizardForm {
 public:
  /// `expert` is borrowed.
  explicit TPlaceProjectWizard(TCommandContext& expert);

  wxStaticText* DirectionLabelFileSelect;
  TLinesView* FileSelectCheckListBox;
  wxCheckBox* SelectedFilesCheckBox;
  wxStaticText* DirectionLabelProjectStatus;

 private:
  void CreateFilesPage();
  void CreateStatusPage();
  void UpdateControls() override;
  wxWindow* FirstControl(int panel) const override;
  void FormKeyDown(wxKeyEvent& event) override;

  TPlaceProjectController controller_;
};

}  // namespace kestrel::addin
