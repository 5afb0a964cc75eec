// Saving before commands, and showing what they changed on disk afterwards.
#include <algorithm>

#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "host/Paths.h"
#include "host/System.h"

void TSccExpert::SaveAll() {
  auto* modules = IdeService<IOTAModuleServices>();
  if (!modules || !modules->SaveAll()) throw EAbort(sSaveAllFailed);
}

void TSccExpert::ReloadProject(const std::string& projectFile) {
  auto* modules = IdeService<IOTAModuleServices>();
  auto* actions = IdeService<IOTAActionServices>();
  if (!modules || !actions) return;
  auto* group = modules->GetMainProjectGroup();
  const auto groupFile = group ? group->GetFileName() : std::string();
  const std::string project = projectFile;  // the caller's text may belong to a module that closes now
  modules->CloseAll();
  if (FileExists(groupFile))
    actions->OpenFile(groupFile);
  else
    actions->OpenProject(project, true);
}

void TSccExpert::ReloadFile(const std::string& fileName) {
  const auto project = GetCurrentProjectFile();
  if (SameText(fileName, project)) return ReloadProject(project);
  auto* modules = IdeService<IOTAModuleServices>();
  auto* actions = IdeService<IOTAActionServices>();
  if (!modules || !actions || SameText(ExtractFileExt(fileName), project_extension_)) return;
  if (modules->FindModule(fileName)) actions->ReloadFile(fileName);
}

void TSccExpert::ReloadFiles(const TStringList& files) {
  const auto project = GetCurrentProjectFile();
  if (std::ranges::any_of(files, [&](const auto& file) { return SameText(file, project); }))
    return ReloadProject(project);
  for (const auto& file : files) ReloadFile(file);
}
