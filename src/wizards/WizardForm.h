// Common window of the two project wizards: four panels, one of them visible, the provider page, the status list and three
// buttons.  The logic is in TWizardController.
#pragma once

#include "expert/ProgressClock.h"
#include "ui/ModalForm.h"
#include "wizards/LinesView.h"
#include "wizards/WizardController.h"

class wxBoxSizer;
class wxButton;
class wxChoice;
class wxPanel;
class wxStaticText;
class wxTextCtrl;

namespace kestrel::addin {

class TWizardForm : public TModalForm {
 public:
  void BackButtonClick(wxCommandEvent& event);
  void NextFinishButtonClick(wxCommandEvent& event);
  void CancelButtonClick(wxCommandEvent& event);
  void ProjectBrowserButtonClick(wxCommandEvent& event);
  void ProjectNameChange(wxCommandEvent& event);
  void cbProvidersChange(wxCommandEvent& event);

  wxButton* BackButton;
  wxButton* NextFinishButton;
  wxButton* CancelButton;
  wxPanel* Page1Panel;
  wxStaticText* DirectionLabelProviderSelect;
  wxChoice* cbProviders;
  wxStaticText* NoProvidersLabel;
  wxPanel* Page2Panel;
  wxStaticText* DirectionLabelSelectProject;
  wxTextCtrl* ProjectName;
  wxButton* ProjectBrowserButton;
  wxPanel* Page3Panel;
  wxPanel* Page4Panel;
  TLinesView* lbStatus;

 protected:
  /// `controller` is borrowed and need not be constructed before FormCreate().  `helpKeyword` is a literal.
  TWizardForm(TWizardController& controller, const char* helpKeyword);
  /// Call at the end of the derived constructor, when all controls exist.
  void FormCreate();
  /// Updates the controls of the derived form from its controller.
  virtual void UpdateControls() {}
  /// The control that gets the focus on that panel.  Null means the Next button, or the status list during the work.
  virtual wxWindow* FirstControl(int panel) const;
  void FormKeyDown(wxKeyEvent& event) override;
  std::string HelpKeyword() const override;
  /// Ignores close requests while work is in progress.
  void CloseWith(int modalResult) override;

  /// The sizer of a panel, with standard margins.
  static wxBoxSizer* ColumnOf(wxPanel* panel);
  /// A text box followed by a button for browsing.
  static wxBoxSizer* BrowseRow(wxTextCtrl* text, wxButton* button);
  static wxStaticText* AddLabel(wxPanel* panel, const TResString& text);
  wxButton* MakeBrowseButton(wxPanel* panel, const TResString& hint);
  /// Sets a label's text and wraps it to the width of the page.
  void SetSentence(wxStaticText* label, const std::string& text);

 private:
  void CreateProviderPage();
  void CreateProjectPage();
  void CreateButtons();
  void LayOut();
  void BindEvents();
  void Changed();
  void UpdatePage();
  void UpdateProviders();
  void UpdateStatus();
  void MoveFocus();

  TWizardController& controller_;
  const char* helpKeyword_;
  wxStaticText* problemLabel_;
  int panel_ = 0;  // the visible one
  TProgressClock clock_;
};

}  // namespace kestrel::addin
