// What the windows of the two project wizards have in common: four panels of which one is shown, the provider page, the
// status list and the three buttons.  The rules are TWizardController'; this only shows them.
#pragma once

#include <chrono>

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
  /// `pages` is borrowed and is used once FormCreate() is called.
  explicit TWizardForm(TWizardController& controller);
  /// To be called by the derived constructor, when all controls are there.
  void FormCreate();
  /// Brings the controls of the derived form in line with its pages.
  virtual void UpdateControls() {}
  /// Where the keyboard goes on that panel; nullptr: to the Next button, or to the status list while it grows.
  virtual wxWindow* FirstControl(int panel) const;
  /// The help of the form; empty when there is none.
  virtual std::string HelpKeyword() const { return {}; }
  void FormKeyDown(wxKeyEvent& event) override;
  /// Whoever closes it: not while it works.
  void CloseWith(int modalResult) override;

  /// A panel's column, with the margins that all panels have.
  static wxBoxSizer* ColumnOf(wxPanel* panel);
  /// A text box with a button for browsing behind it.
  static wxBoxSizer* BrowseRow(wxTextCtrl* text, wxButton* button);
  static wxStaticText* AddLabel(wxPanel* panel, const TResString& text);
  wxButton* MakeBrowseButton(wxPanel* panel, const TResString& hint);
  /// A sentence that is wrapped to the width of the page.
  void SetSentence(wxStaticText* label, const std::string& text);

 private:
  using TClock = std::chrono::steady_clock;

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
  wxStaticText* ProblemLabel;
  int panel_ = 0;  // the one that is shown
  TClock::time_point next_update_;
};

}  // namespace kestrel::addin
