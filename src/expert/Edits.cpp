#include "expert/Edits.h"

#include <algorithm>

#include "expert/ProjectFiles.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel::addin {

namespace {

bool IsEdited(const std::string& fileName) {
  if (IsUnit(fileName) || IsProject(fileName)) return IsUnitModified(fileName);
  auto* editor = FindEditor(fileName, FileTypes().GetUnit(fileName));
  return editor && editor->GetModified();
}

}  // namespace

void SaveEdits(const std::string& fileName) {
  if (!IsEdited(fileName)) return;
  auto* actions = IdeService<IOTAActionServices>();
  if (!actions || !actions->SaveFile(fileName)) throw EAbort(Format(sFileNotSaved, {fileName}));
}

void SaveAllModules() {
  auto* modules = IdeService<IOTAModuleServices>();
  if (!modules || !modules->SaveAll()) throw EAbort(sSaveAllFailed);
}

void ReloadProject(const std::string& projectFile) {
  auto* modules = IdeService<IOTAModuleServices>();
  auto* actions = IdeService<IOTAActionServices>();
  if (!modules || !actions) return;
  auto* group = modules->GetMainProjectGroup();
  const auto groupFile = group ? group->GetFileName() : std::string();
  // The argument may belong to a module that closes now.
  const std::string project = projectFile;  // NOLINT(performance-unnecessary-copy-initialization)
  modules->CloseAll();
  if (FileExists(groupFile))
    actions->OpenFile(groupFile);
  else
    actions->OpenProject(project, true);
}

void ReloadFile(const std::string& fileName) {
  const auto project = GetCurrentProjectFile();
  if (SameText(fileName, project)) return ReloadProject(project);
  auto* modules = IdeService<IOTAModuleServices>();
  auto* actions = IdeService<IOTAActionServices>();
  if (!modules || !actions || IsProject(fileName)) return;
  if (modules->FindModule(fileName)) actions->ReloadFile(fileName);
}

void ReloadFiles(const std::vector<std::string>& files) {
  const auto project = GetCurrentProjectFile();
  if (std::ranges::any_of(files, [&](const auto& file) { return SameText(file, project); }))
    return ReloadProject(project);
  for (const auto& file : files) ReloadFile(file);
}

}  // namespace kestrel::addin
