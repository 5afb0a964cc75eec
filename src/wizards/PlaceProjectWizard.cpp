#include "wizards/PlaceProjectWizard.h"

#include <wx/wx.h>

#include "toolkit/WxText.h"
#include "wizards/PlaceProjectWizardStrings.h"

namespace kestrel::addin {

namespace {
constexpr int kFilesPanel = 3;
}

TPlaceProjectWizard::TPlaceProjectWizard(TCommandContext& expert)
    : TWizardForm(controller_, "HC_TeamPlaceProject"), controller_(expert) {
  CreateFilesPage();
  CreateStatusPage();
  FormCreate();
}

void TPlaceProjectWizard::CreateFilesPage() {
  DirectionLabelFileSelect = AddLabel(Page3Panel, sPlaceSelectFiles);
  FileSelectCheckListBox = new TLinesView(
      Page3Panel, {[this] { return controller_.FileCount(); },
                   [this](std::size_t row) -> const std::string& { return controller_.FileName(row); },
                   [this](std::size_t row) { return controller_.IsTicked(row); },
                   [this](std::size_t row, bool ticked) { controller_.SetTicked(row, ticked); }});
  SelectedFilesCheckBox = new wxCheckBox(Page3Panel, wxID_ANY, ToWx(sPlaceCheckOutAfterAdd));
  SelectedFilesCheckBox->Bind(wxEVT_CHECKBOX, [this](wxCommandEvent&) {
    controller_.KeepCheckedOut = SelectedFilesCheckBox->GetValue();
  });
  ColumnOf(Page3Panel)->Add(FileSelectCheckListBox, wxSizerFlags(1).Expand());
  ColumnOf(Page3Panel)->Add(SelectedFilesCheckBox, wxSizerFlags().Border(wxTOP, FromDIP(8)));
}

void TPlaceProjectWizard::CreateStatusPage() {
  DirectionLabelProjectStatus = AddLabel(Page4Panel, sPlaceStatus);
  ColumnOf(Page4Panel)->Add(lbStatus, wxSizerFlags(1).Expand());
}

void TPlaceProjectWizard::UpdateControls() {
  if (controller_.Page().Panel == kFilesPanel) FileSelectCheckListBox->UpdateLines();
}

wxWindow* TPlaceProjectWizard::FirstControl(int panel) const {
  return panel == kFilesPanel ? FileSelectCheckListBox : TWizardForm::FirstControl(panel);
}

void TPlaceProjectWizard::FormKeyDown(wxKeyEvent& event) {
  const bool inFiles = FileSelectCheckListBox->IsDescendant(FindFocus());
  if (inFiles && event.GetKeyCode() == WXK_SPACE && !event.HasAnyModifiers())
    FileSelectCheckListBox->ToggleSelected();
  else if (inFiles && event.GetKeyCode() == 'A' && event.GetModifiers() == wxMOD_CONTROL)
    FileSelectCheckListBox->SelectAll();
  else
    TWizardForm::FormKeyDown(event);
}

}  // namespace kestrel::addin
