// Workspace: opening and creating.
#include <stdexcept>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"
#include "workbench/model/ModelStrings.h"
#include "workbench/model/Workspace.h"

namespace kestrel::workbench {

namespace {

/// The first of name1, name2, ... that is not `taken`.
template <class Taken>
std::string FirstFree(const std::string& stem, const char* extension, Taken taken) {
  for (int n = 1;; ++n)
    if (std::string name = stem + std::to_string(n) + extension; !taken(name)) return name;
}

bool HasExt(const std::string& fileName, const char* extension) {
  return SameText(ExtractFileExt(fileName), extension);
}

}  // namespace

bool TWorkspace::Open(const std::string& fileName) {
  const std::string full = FullPath(fileName);
  if (HasExt(full, kGroupExt)) return OpenGroup(full);
  if (HasExt(full, kProjectExt)) return OpenProject(full, true);
  return OpenUnit(full);
}

void TWorkspace::AnnounceOpened(const std::vector<std::string>& fileNames) {
  for (const auto& name : fileNames)
    if (index_.Find(name)) notifications_.FileOpened(name);  // an earlier notification may have closed it
}

bool TWorkspace::OpenUnit(const std::string& fileName) {
  // A form is opened together with its unit.
  const std::string source = ChangeFileExt(fileName, kUnitExt);
  const bool withUnit = HasExt(fileName, kFormExt) && FileExists(source) && FileExists(fileName);
  const std::string& moduleFile = withUnit ? source : fileName;
  TOpenModule* module = index_.Find(fileName);
  const bool known = module != nullptr;
  if (!known) {
    auto unit = std::make_unique<TUnit>(moduleFile, caller_);
    for (const auto& document : unit->Documents()) document->Load();
    module = &AddModule(std::move(unit));
    for (const auto& document : module->Documents()) ui_.EditorOpened(static_cast<TTextEditor&>(*document));
  }
  if (auto* text = dynamic_cast<TTextEditor*>(module->FindDocument(fileName))) ui_.ShowEditor(*text);
  if (!known) AnnounceOpened({moduleFile});
  return true;
}

void TWorkspace::ShowUnit(TUnit& unit) {
  for (const auto& document : unit.Documents()) ui_.EditorOpened(static_cast<TTextEditor&>(*document));
  ui_.ShowEditor(unit.Text(0));
}

TProjectGroup& TWorkspace::MakeGroup(const std::string& projectFile) {
  const std::string directory = IncludeTrailingPathDelimiter(ExtractFileDir(projectFile));
  const std::string name = FirstFree("ProjectGroup", kGroupExt, [&](const std::string& candidate) {
    return FileExists(directory + candidate);
  });
  group_ = &AddModule(std::make_unique<TProjectGroup>(directory + name, caller_));
  return *group_;
}

bool TWorkspace::OpenProject(const std::string& fileName, bool newGroup) {
  const std::string full = FullPath(fileName);
  if (auto* open = dynamic_cast<TProject*>(index_.Find(full))) {
    SetActiveProject(*open);
    return true;
  }
  auto project = std::make_unique<TProject>(full, caller_);
  project->Definition().Load();
  if ((newGroup || !group_) && !CloseAll()) return false;
  TProjectGroup& group = group_ ? *group_ : MakeGroup(full);
  TProject& added = AddModule(std::move(project));
  const bool alone = !group.Active();
  group.Add(added);
  if (alone) group.SetActive(added);
  ui_.ProjectsChanged();
  AnnounceOpened({full});
  // Announced before it becomes active, so that packages leave the previous project in response.
  if (auto* open = dynamic_cast<TProject*>(index_.Find(full))) SetActiveProject(*open);
  return true;
}

bool TWorkspace::OpenGroup(const std::string& fileName) {
  if (group_ && SameText(group_->FileName(), fileName)) return true;
  auto group = std::make_unique<TProjectGroup>(fileName, caller_);
  group->Definition().Load();
  group->RecordSaved();
  if (!CloseAll()) return false;
  group_ = &AddModule(std::move(group));
  AttachListedProjects(*group_);
  ui_.ProjectsChanged();
  std::vector<std::string> opened{fileName};
  for (const TProject* project : group_->Projects()) opened.push_back(project->FileName());
  AnnounceOpened(opened);
  return true;
}

void TWorkspace::AttachListedProjects(TProjectGroup& group) {
  const TGroupFile& file = group.Definition().Get();
  const std::string directory = ExtractFileDir(group.FileName());
  const auto remembered = lastActive_.find(group.FileName());
  const std::string active =
      FromStoredPath(directory, remembered == lastActive_.end() ? file.Active() : remembered->second);
  for (const std::string& stored : file.Items()) {
    const std::string path = FromStoredPath(directory, stored);
    if (index_.Find(path)) continue;
    try {
      auto project = std::make_unique<TProject>(path, caller_);
      project->Definition().Load();
      group.Attach(AddModule(std::move(project)), SameText(path, active));
    } catch (const std::exception& e) {
      Log(Format(sProjectMissing, {group.FileName(), e.what()}));
    }
  }
}

bool TWorkspace::NewProject(const std::string& fileName) {
  const std::string full = FullPath(fileName);
  if (!CloseAll()) return false;
  WriteFileAtomically(full, TProjectFile().Text());
  return OpenProject(full, true);
}

TUnit& TWorkspace::NewUnit(const std::string& directory) {
  TProject* project = ActiveProject();
  const std::string base =
      IncludeTrailingPathDelimiter(project ? ExtractFileDir(project->FileName()) : FullPath(directory));
  const std::string name = FirstFree("Unit", kUnitExt, [&](const std::string& candidate) {
    return index_.Find(base + candidate) || FileExists(base + candidate) ||
           (project && project->IndexOfModuleFile(base + candidate) >= 0);
  });
  auto unit = std::make_unique<TUnit>(base + name, caller_);
  unit->Text(0).SetNewText(Format(sNewUnitText, {ChangeFileExt(name, "")}));
  TUnit& added = AddModule(std::move(unit));
  ShowUnit(added);
  if (project) AddToProject({added.FileName()});
  AnnounceOpened({added.FileName()});
  return added;
}

}  // namespace kestrel::workbench
