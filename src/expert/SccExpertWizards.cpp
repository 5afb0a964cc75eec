// Releases the provider before the wizards and restores it after them.
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "host/Errors.h"

namespace kestrel::addin {

// A provider has one project open at a time.  So the wizards start without a provider, load the one that the user
// chooses, and the project that was open is opened again afterwards.

void TSccExpert::PlaceProject() {
  const auto project = Trim(GetCurrentProjectFile());
  if (project.empty()) throw EAbort(sNoProjectFile);
  SaveAll();
  auto& provider = context_.Provider;
  provider.Release();
  ReadProjectSettings(project);  // the user may have changed them since the project was opened
  context_.Ui.ShowPlaceProject(context_);
  if (!provider.OpenProjectFile().empty()) return;
  // Not opened here, even if the wizard has written the mapping file: it has just shown why opening fails.
  provider.Release();
  ReadProjectSettings(project);
}

namespace {

void OpenInHost(const std::string& file, bool isProject) {
  auto* actions = IdeService<IOTAActionServices>();
  const bool opened = actions && (isProject ? actions->OpenProject(file, true) : actions->OpenFile(file));
  if (!opened) WriteMessageFmt(mwtWarning, sPulledNotOpened, {file});
}

}  // namespace

void TSccExpert::PullProjectWizard() {
  auto& provider = context_.Provider;
  provider.Release();
  ReadSettings();
  const auto pulled = context_.Ui.ShowPullProject(context_);
  provider.Release();
  if (!pulled.empty()) OpenInHost(pulled, IsProject(pulled));
  context_.Activities.RunWaiting();
  if (provider.List()) return;
  const auto project = Trim(GetCurrentProjectFile());
  ReadProjectSettings(project);  // a project is only opened for the provider that is selected
  FileNotifyProjectOpen(project);
}

}  // namespace kestrel::addin
