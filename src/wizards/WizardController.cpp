#include "wizards/WizardController.h"

#include <algorithm>
#include <ranges>

#include "expert/SccExpertStrings.h"
#include "host/Errors.h"
#include "provider/SCMAddInOptions.h"
#include "provider/SCMOptionsStrings.h"
#include "system/Registry.h"
#include "ui/ButtonStrings.h"
#include "wizards/WizardControllerStrings.h"

namespace kestrel::addin {

namespace {

constexpr int kLastPage = 3;
// The fourth page, the status page, does not count as a step.
constexpr long long kSteps = 3;
// There may be thousands; the form has room for a few.
constexpr std::ptrdiff_t kShownReasons = 3;

}  // namespace

void TWizardController::ShowProblemOf(const std::function<void()>& action) {
  page_.Problem.clear();
  const auto run = [&] {
    FExpert.Activities.RequireNoProviderCall();  // it may show a modeless window
    action();
  };
  RunCatching(run, [this](const std::exception& error) { page_.Problem = error.what(); });
  Changed();
}

void TWizardController::Changed() const {
  if (OnChange) OnChange();
}

void TWizardController::Progressed() const {
  if (OnProgress) OnProgress();
}

void TWizardController::FormCreate(TWindowHandle window) {
  window_ = window;
  ShowProblemOf([this] {
    Initialize();
    InitializeProject();
  });
  const auto problem = page_.Problem;
  ShowProblemOf([this] { DisplayPage(); });
  page_.Problem = problem;
  Changed();
}

void TWizardController::Initialize() {
  providers_.clear();
  projectName_.clear();
  TRegistry registry;
  if (registry.OpenKeyReadOnly(kInstalledProvidersKey)) providers_ = registry.GetValueNames();
  std::erase_if(providers_, [this](const std::string& name) { return !Offers(name); });
  selected_ = providers_.empty() ? -1 : 0;

  auto name = TSCMAddInEnvironmentOptions().SCCProvider();
  if (name.empty()) TProviderContext::ReadDefaultProvider(name);
  const auto found =
      std::ranges::find_if(providers_, [&](const std::string& known) { return SameText(known, name); });
  if (found != providers_.end()) selected_ = static_cast<int>(found - providers_.begin());
}

void TWizardController::SetSCCSettings() {
  FExpert.Provider.Select(selected_ < 0 ? std::string() : providers_[static_cast<std::size_t>(selected_)]);
}

void TWizardController::InitializeProject() {
  if (!FExpert.Provider.List()) {
    SetSCCSettings();
    if (!FExpert.Provider.Create(window_)) return;
  }
  EnsureProject();
}

TSCCProviderProject& TWizardController::EnsureProject() {
  if (localPath_.empty()) localPath_ = ProjectDirectory();
  auto* list = FExpert.Provider.List();
  if (list && !list->SetCurrentProject(localPath_)) {
    list->Add(localPath_);
    auto& project = Project();
    if (!picked_.UserName.empty()) project.set_UserName(picked_.UserName);
    project.set_ProjName(picked_.ProjName);
    project.set_ProjPath(picked_.ProjPath);
  }
  return Project();
}

TSCCProviderProject& TWizardController::Project() {
  FExpert.Activities.RunWaiting();
  return FExpert.Provider.SelectProject(localPath_, NoProviderText());
}

void TWizardController::RemoveProject(const std::string& directory) {
  auto* list = FExpert.Provider.List();
  if (!list) return;
  list->Remove(directory);
  list->SetCurrentProject(directory);  // the current project must not dangle
}

void TWizardController::cbProvidersChange(int selected) {
  ShowProblemOf([&] {
    selected_ = selected;
    picked_ = {};
    projectName_.clear();
    localPath_.clear();
    FExpert.Provider.Release();
    PageSelectProviderDisplay();  // the result if the provider cannot be created
    InitializeProject();
    PageSelectProviderDisplay();
  });
}

void TWizardController::DisplayPage() {
  page_.Caption = FPage == kLastPage
                      ? StatusCaption().str()
                      : Format(StepCaption().Text, {static_cast<long long>(FPage) + 1, kSteps});
  ShowPage(FPage);
}

void TWizardController::Show(int panel, const TResString& next, bool nextEnabled) {
  page_.Panel = panel;
  page_.Back = true;
  page_.Next = nextEnabled;
  page_.Cancel = true;
  page_.NextCaption = next;
  page_.NoProviders = false;
  Changed();  // shows the page before the provider's dialog opens
}

void TWizardController::PageSelectProviderDisplay() {
  Show(1, sWizardNext);
  page_.Back = false;
  if (selected_ < 0 && providers_.empty()) {
    providers_.push_back(sNoProvidersAvailable);
    selected_ = 0;
  }
  const bool none = providers_.size() == 1 && providers_.front() == sNoProvidersAvailable.str();
  page_.NoProviders = !FExpert.Provider.List();
  page_.Next = !none && !page_.NoProviders;
}

void TWizardController::PageStatusDisplay(Work work) {
  status_.clear();
  stopped_ = false;
  page_.Working = true;
  Show(4, sButtonClose, false);
  page_.Back = false;
  page_.Cancel = work == Work::CanStop;
  Changed();
}

void TWizardController::Complete(bool succeeded) {
  page_.Working = false;
  page_.Cancel = false;
  page_.Next = true;
  page_.Back = !succeeded;  // the user can correct the input and retry
  Changed();
}

void TWizardController::BackButtonClick() {
  if (FPage == 0) return;
  ShowProblemOf([this] {
    --FPage;
    if (SkipsProjectPage() && FPage == 1) --FPage;
    DisplayPage();
  });
}

void TWizardController::NextFinishButtonClick() {
  if (FPage == kLastPage) {
    finished_ = true;
    return Changed();
  }
  ShowProblemOf([this] {
    if (!CanLeave()) return;
    ++FPage;
    DisplayPage();
  });
}

bool TWizardController::CancelButtonClick() {
  if (!page_.Working) return true;
  if (!page_.Cancel) return false;
  stopped_ = true;
  page_.Cancel = false;
  Changed();
  return false;
}

void TWizardController::Pick(const TSCCProviderProject& project) {
  picked_ = {project.get_ProjName(), project.get_ProjPath(), project.get_UserName()};
  projectName_ = picked_.ProjName;
}

void TWizardController::ProjectBrowserButtonClick() {
  ShowProblemOf([this] {
    TStateMessages messages;
    TProviderMessageRecorder recorder;
    auto& project = EnsureProject();
    const auto code = Browse(project, messages);
    page_.Problem.clear();  // may have been set by a nested event
    if (code == scc::SCC_OK) {
      Pick(project);
    } else if (code < 0) {
      ShowReasons(Reasons(recorder, messages));
    }
    page_.Next = !projectName_.empty();
  });
}

void TWizardController::ProjectNameChange(const std::string& text) {
  ShowProblemOf([&] {
    projectName_ = text;
    page_.Next = !text.empty();
    NameProject(text);
  });
}

void TWizardController::NameProject(const std::string& name) {
  picked_.ProjName = name;
  EnsureProject().set_ProjName(name);
}

void TWizardController::AddStatus(std::string line) {
  status_.push_back(std::move(line));
  Progressed();
}

void TWizardController::AddFailure(const TStringList& reasons) {
  ShowReasons(reasons);
  for (const auto& reason : reasons) AddStatus(reason);
}

void TWizardController::ShowReasons(const TStringList& reasons) {
  page_.Problem.clear();
  for (const auto& reason : reasons | std::views::take(kShownReasons))
    page_.Problem += (page_.Problem.empty() ? "" : "\n") + reason;
}

TStringList TWizardController::Reasons(TProviderMessageRecorder& recorder, const TStateMessages& messages) {
  auto reasons = recorder.DrainErrors();
  if (reasons.empty())
    for (const auto& text : {messages[2], messages[1]})
      if (!text.empty()) reasons.push_back(text);
  return reasons;
}

}  // namespace kestrel::addin
