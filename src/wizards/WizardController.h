// What the wizards that place and pull a project have in common, without their windows: the pages and their buttons, the
// provider that is chosen, the provider project that is picked, and the lines of the status page.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "expert/CommandContext.h"
#include "wizards/ProviderMessageRecorder.h"

namespace kestrel::addin {

/// What a wizard's form shows of the current page.
struct TWizardPageState {
  std::string Caption;
  int Panel = 1;  ///< which of the form's four panels
  bool Back = false;
  bool Next = false;
  bool Cancel = true;
  bool Working = false;  ///< on the status page, until everything is done
  std::string NextCaption;
  bool NoProviders = false;  ///< the notice on the provider page
  std::string Problem;       ///< a sentence: why it does not go on; empty when nothing is in the way
};

class TWizardController {
 public:
  /// `expert` is borrowed.  The handlers below never throw: what goes wrong becomes the page's Problem, or a line of the
  /// status page.
  explicit TWizardController(TCommandContext& expert) : FExpert(expert) {}
  TWizardController(const TWizardController&) = delete;
  TWizardController& operator=(const TWizardController&) = delete;
  virtual ~TWizardController() = default;

  /// Called whenever the form should look again: Page() or texts have changed.
  std::function<void()> OnChange;
  /// Called while the work goes on, for every line: must be cheap.  May let the user press Cancel, and nothing else.
  std::function<void()> OnProgress;

  /// Fills the list of providers, creates the chosen one and shows the first page.  `window` is the parent of the
  /// provider's dialogs.
  void FormCreate(TWindowHandle window);

  // The form's handlers.
  void BackButtonClick();
  void NextFinishButtonClick();
  /// True when the form is to be closed; while it works, it is asked to stop instead.
  bool CancelButtonClick();
  void ProjectBrowserButtonClick();
  void ProjectNameChange(const std::string& text);
  void cbProvidersChange(int selected);

  const TWizardPageState& Page() const { return page_; }
  const TStringList& Providers() const { return providers_; }
  int SelectedProvider() const { return selected_; }  ///< -1 when there is none
  const std::string& ProjectName() const { return project_name_; }
  const TStringList& Status() const { return status_; }
  /// The Close button of the status page was pressed.
  bool Finished() const { return finished_; }

 protected:
  virtual const TResString& StepCaption() const = 0;
  virtual const TResString& StatusCaption() const = 0;
  virtual void ShowPage(int page) = 0;
  /// The directory that the provider project is created for.
  virtual std::string ProjectDirectory() = 0;
  virtual std::string NoProviderText() const = 0;
  /// Whether the provider of that name can be chosen here.
  virtual bool Offers(const std::string&) const { return true; }
  /// Asks the provider for a project; its return code.
  virtual scc::Long Browse(TSCCProviderProject& project, TStateMessages& messages) = 0;
  /// Whether the current page can be left forwards; says why not in the page's Problem.
  virtual bool MayLeave() { return true; }
  virtual bool SkipsProjectPage() const { return false; }

  void DisplayPage();
  void PageSelectProviderDisplay();
  /// Shows a page with Back and that Next button.
  void Show(int panel, const TResString& next, bool nextEnabled = true);
  enum class Work { CanStop, Uninterrupted };
  /// The status page: nothing but, for work that can stop, Cancel can be pressed until Complete().
  void PageStatusDisplay(Work work);
  void Complete(bool succeeded);
  /// The user has pressed Cancel since PageStatusDisplay().
  bool IsStopped() const { return stopped_; }
  void Changed() const;
  void Progressed() const;
  void AddStatus(std::string line);
  /// What ends the work: as lines, and as the page's Problem.
  void AddFailure(const TStringList& reasons);
  /// Makes them the page's Problem, which is shown whole and stays until the user does something about it.
  void ShowReasons(const TStringList& reasons);
  /// What the provider said about a failure, or else the texts of its return code.
  static TStringList Reasons(TProviderMessageRecorder& recorder, const TStateMessages& messages);

  /// The wizard's provider project, made current after waiting notifications have run.  Throws EAbort when the host has
  /// released the provider meanwhile.
  TSCCProviderProject& Project();
  /// The same, created first when it is not there (any more), with what the user has picked.
  TSCCProviderProject& EnsureProject();
  /// Names the provider project, as the user's pick does.
  void NameProject(const std::string& name);
  /// The provider project is now at its own local path: that is where Project() looks for it from now on.
  void Follow(const TSCCProviderProject& project) { local_path_ = project.get_LocalPath(); }
  const std::string& LocalPath() const { return local_path_; }
  void RemoveProject(const std::string& directory);

  TCommandContext& FExpert;
  TWizardPageState page_;

 private:
  void Initialize();
  void InitializeProject();
  void SetSCCSettings();
  void Pick(const TSCCProviderProject& project);
  /// Runs `action`; what it throws becomes the page's Problem.
  void ShowProblemOf(const std::function<void()>& action);

  /// What names the provider project: it must outlive a session that was rolled back.
  struct TIdentity {
    std::string ProjName, ProjPath, UserName;
  };

  int FPage = 0;
  TWindowHandle window_ = 0;
  TStringList providers_;
  int selected_ = -1;
  std::string local_path_;
  TIdentity picked_;
  std::string project_name_;
  TStringList status_;
  bool stopped_ = false;
  bool finished_ = false;
};

}  // namespace kestrel::addin
