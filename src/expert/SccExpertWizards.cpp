// The wizards' frame: what happens to the provider before and after them.
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "host/Errors.h"

// A provider has one project open at a time.  So the wizards start without a provider and create the one that the user
// chooses, and what was open is opened again afterwards.

void TSccExpert::PlaceProject() {
  const auto project = Trim(GetCurrentProjectFile());
  if (project.empty()) throw EAbort(sNoProjectFile);
  SaveAll();
  ReleaseProvider();
  ReadProjectSettings(project);  // the user's choices of now, not of when the last project was opened
  forms_.ShowPlaceProject(*this);
  if (!open_project_file_.empty()) return;
  // Not opened here, even if the wizard has written the mapping file: it has just shown why that does not work.
  ReleaseProvider();
  ReadProjectSettings(project);
}

namespace {

void OpenInHost(const std::string& file, bool isProject) {
  auto* actions = IdeService<IOTAActionServices>();
  const bool opened = actions && (isProject ? actions->OpenProject(file, true) : actions->OpenFile(file));
  if (!opened) WriteMessageFmt(mwtWarning, sPulledNotOpened.Text, {file});
}

}  // namespace

void TSccExpert::PullProjectWizard() {
  ReleaseProvider();
  ReadSettings();
  const auto pulled = forms_.ShowPullProject(*this);
  ReleaseProvider();
  if (!pulled.empty()) OpenInHost(pulled, IsProject(pulled));
  activities_.Resume();
  if (!provider_list_) ReopenProject();
}

void TSccExpert::ReopenProject() {
  const auto project = Trim(GetCurrentProjectFile());
  if (project.empty()) return ReadSettings();
  ReadProjectSettings(project);  // a project is only opened for the provider of this name
  FileNotifyProjectOpen(project);
}
