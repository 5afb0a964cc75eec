// Common logic of the two wizards that place and pull a project: pages and buttons, the choice of provider and provider
// project, and the lines of the status page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "expert/CommandContext.h"
#include "expert/ProviderMessageRecorder.h"

namespace kestrel::addin {

/// State of the current page for the wizard's form.
struct TWizardPageState {
  std::string Caption;
  int Panel = 1;  ///< the form's panel, from 1 to 4
  bool Back = false;
  bool Next = false;
  bool Cancel = true;
  bool Working = false;  ///< the work of the status page is in progress
  std::string NextCaption;
  bool NoProviders = false;  ///< the provider page shows its notice
  std::string Problem;       ///< sentences why the wizard cannot continue; may be empty
};

class TWizardController {
 public:
  /// `expert` is borrowed.  The handlers below never throw: a failure becomes the page's Problem or a line of the status
  /// page.
  explicit TWizardController(TCommandContext& expert) : FExpert(expert) {}
  TWizardController(const TWizardController&) = delete;
  TWizardController& operator=(const TWizardController&) = delete;
  virtual ~TWizardController() = default;

  /// Called when Page() or the texts have changed.
  std::function<void()> OnChange;
  /// Called during the work, for each line; must be fast.  May dispatch input for Cancel, but for nothing else.
  std::function<void()> OnProgress;

  /// Reads the list of providers, creates the selected one and shows the first page.  `window` is the parent of the
  /// provider's dialogs.
  void FormCreate(TWindowHandle window);

  // The form's handlers.
  void BackButtonClick();
  void NextFinishButtonClick();
  /// Returns whether the form should close.  During the work it only requests that the work stop.
  bool CancelButtonClick();
  void ProjectBrowserButtonClick();
  void ProjectNameChange(const std::string& text);
  void cbProvidersChange(int selected);

  const TWizardPageState& Page() const { return page_; }
  const TStringList& Providers() const { return providers_; }
  int SelectedProvider() const { return selected_; }  ///< -1 for none
  const std::string& ProjectName() const { return projectName_; }
  const TStringList& Status() const { return status_; }
  /// Whether the Close button of the status page was pressed.
  bool Finished() const { return finished_; }

 protected:
  virtual const TResString& StepCaption() const = 0;
  virtual const TResString& StatusCaption() const = 0;
  virtual void ShowPage(int page) = 0;
  /// The directory for which the provider project is created.
  virtual std::string ProjectDirectory() = 0;
  virtual std::string NoProviderText() const = 0;
  /// Whether the wizard supports the provider of that name.
  virtual bool Offers(const std::string&) const { return true; }
  /// Lets the user choose a project in the provider's dialog; returns the provider's code.
  virtual scc::Long Browse(TSCCProviderProject& project, TStateMessages& messages) = 0;
  /// Whether Next can leave the current page; if not, sets the page's Problem.
  virtual bool CanLeave() { return true; }
  virtual bool SkipsProjectPage() const { return false; }

  void DisplayPage();
  void PageSelectProviderDisplay();
  /// Shows a panel with Back and a Next button with that caption.
  void Show(int panel, const TResString& next, bool nextEnabled = true);
  enum class Work { CanStop, Uninterrupted };
  /// Shows the status page.  Until Complete() all buttons are disabled, except Cancel for work that can stop.
  void PageStatusDisplay(Work work);
  void Complete(bool succeeded);
  /// Whether the user has pressed Cancel since PageStatusDisplay().
  bool IsStopped() const { return stopped_; }
  void Changed() const;
  void Progressed() const;
  void AddStatus(std::string line);
  /// Adds the reasons as lines and sets the page's Problem.
  void AddFailure(const TStringList& reasons);
  /// Sets the page's Problem to the first reasons.
  void ShowReasons(const TStringList& reasons);
  /// The provider's recorded errors, or without any the texts of its return code.
  static TStringList Reasons(TProviderMessageRecorder& recorder, const TStateMessages& messages);

  /// Runs queued notifications, then makes the wizard's provider project current.  The reference is valid until a dialog is
  /// shown, because the host may release the provider meanwhile.  Throws EAbort if it has.
  TSCCProviderProject& Project();
  /// Like Project(), but creates a missing project with the user's choice.
  TSCCProviderProject& EnsureProject();
  /// Sets the name of the provider project.
  void NameProject(const std::string& name);
  /// Makes Project() look for the project at its present local path.
  void SetLocalPathFrom(const TSCCProviderProject& project) { localPath_ = project.get_LocalPath(); }
  const std::string& LocalPath() const { return localPath_; }
  void RemoveProject(const std::string& directory);

  TCommandContext& FExpert;
  TWizardPageState page_;

 private:
  void Initialize();
  void InitializeProject();
  void SetSCCSettings();
  void Pick(const TSCCProviderProject& project);
  /// Runs `action`; the message of an exception becomes the page's Problem.
  void ShowProblemOf(const std::function<void()>& action);

  /// Identity of the provider project; outlives one that was rolled back.
  struct TIdentity {
    std::string ProjName, ProjPath, UserName;
  };

  int FPage = 0;
  TWindowHandle window_ = 0;
  TStringList providers_;
  int selected_ = -1;
  std::string localPath_;
  TIdentity picked_;
  std::string projectName_;
  TStringList status_;
  bool stopped_ = false;
  bool finished_ = false;
};

}  // namespace kestrel::addin
