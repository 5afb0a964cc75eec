#include "Modules.h"

#include <algorithm>

#include "PluginStrings.h"
#include "Sdk.h"
#include "system/System.h"

namespace kestrel::codeblocks {

namespace {

/// The file of the workspace; empty for the default one.
std::string WorkspaceFile() {
  const auto* workspace = Projects().GetWorkspace();
  return workspace && !workspace->IsDefault() ? FromWx(workspace->GetFilename()) : std::string();
}

bool SaveProject(cbProject& project) { return !project.GetModified() || Projects().SaveProject(&project); }

bool SaveWorkspace() {
  return WorkspaceFile().empty() || !Projects().GetWorkspace()->GetModified() || Projects().SaveWorkspace();
}

/// The IDE reports success for some files that it cannot write.
bool SaveEditor(EditorBase& editor) {
  return !editor.GetModified() || (editor.Save() && !editor.GetModified());
}

}  // namespace

bool TSourceEditor::GetModified() {
  if (const auto* project = FindProject(fileName_)) return project->GetModified();
  if (const auto* editor = FindEditor(fileName_)) return editor->GetModified();
  return fileName_ == WorkspaceFile() && !fileName_.empty() && Projects().GetWorkspace()->GetModified();
}

int TSourceEditor::GetEditViewCount() { return FindEditor(fileName_) ? 1 : 0; }

int TProjectModule::GetModuleCount() {
  files_.clear();
  if (const auto* project = FindProject(GetFileName()))
    for (const auto* file : project->GetFilesList()) files_.push_back(FromWx(file->file.GetFullPath()));
  std::ranges::sort(files_);  // the IDE keeps them by hash
  return static_cast<int>(files_.size());
}

std::string TProjectModule::ModuleFileName(int index) {
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < files_.size() ? files_[at] : std::string();
}

IOTAProject* TGroupModule::GetActiveProject() {
  const auto active = FileOf(Projects().GetActiveProject());
  return active.empty() ? nullptr : &modules_.Project(active);
}

TProjectModule& TModules::Project(const std::string& fileName) {
  return projects_.try_emplace(fileName, fileName).first->second;
}

TFileModule& TModules::Unit(const std::string& fileName) {
  return units_.try_emplace(fileName, fileName).first->second;
}

void TModules::Notify(const std::string& fileName, void (IOTANotifier::*notification)()) {
  const auto unit = units_.find(fileName);
  if (unit == units_.end()) return;
  unit->second.Editor().Notifiers().ForEach(
      [&](IOTANotifier& notifier) { caller_.Run(fileName, [&] { (notifier.*notification)(); }); });
}

std::vector<IOTAModule*> TModules::Open() {
  std::vector<IOTAModule*> open;
  if (auto* group = GetMainProjectGroup()) open.push_back(group);
  for (const auto* project : *Projects().GetProjects()) open.push_back(&Project(FileOf(project)));
  for (int i = 0; i < Editors().GetEditorsCount(); ++i)
    if (const auto file = FileOf(Editors().GetEditor(i)); !file.empty()) open.push_back(&Unit(file));
  return open;
}

IOTAModule* TModules::GetModule(int index) {
  const auto open = Open();
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < open.size() ? open[at] : nullptr;
}

IOTAModule* TModules::FindModule(const std::string& fileName) {
  if (fileName.empty()) return nullptr;
  if (FoldFileName(fileName) == FoldFileName(WorkspaceFile())) return GetMainProjectGroup();
  if (const auto* project = FindProject(fileName)) return &Project(FileOf(project));
  const auto* editor = FindEditor(fileName);
  return editor ? &Unit(FileOf(editor)) : nullptr;
}

IOTAModule* TModules::CurrentModule() { return FindModule(GetFileName()); }

IOTAProjectGroup* TModules::GetMainProjectGroup() {
  const auto file = WorkspaceFile();
  return &groups_.try_emplace(file, file, *this).first->second;
}

std::string TModules::GetFileName() { return FileOf(Editors().GetActiveEditor()); }

bool TModules::SaveAll() {
  bool saved = true;
  for (int i = 0; i < Editors().GetEditorsCount(); ++i) saved = SaveEditor(*Editors().GetEditor(i)) && saved;
  for (auto* project : *Projects().GetProjects()) saved = SaveProject(*project) && saved;
  return SaveWorkspace() && saved;
}

bool TModules::CloseWorkspace() {
  const bool closed = Projects().CloseWorkspace();
  changed_();
  return closed;
}

bool TModules::CloseAll() {
  closed_.clear();
  if (WorkspaceFile().empty())
    for (const auto* project : *Projects().GetProjects()) closed_.push_back(FileOf(project));
  return CloseWorkspace();
}

bool TModules::OpenFile(const std::string& fileName) {
  const auto name = ToWx(fileName);
  if (FileTypeOf(name) == ftCodeBlocksProject) return OpenProject(fileName, false);
  if (FileTypeOf(name) != ftCodeBlocksWorkspace) return Editors().Open(name);
  const bool opened = Projects().LoadWorkspace(name);
  changed_();
  return opened;
}

bool TModules::OpenProject(const std::string& fileName, bool newProjectGroup) {
  auto siblings = std::exchange(closed_, {});
  const bool reopens = std::ranges::find(siblings, fileName) != siblings.end();
  if (!reopens) siblings.clear();
  if (newProjectGroup && !reopens && !CloseWorkspace()) return false;
  for (const auto& sibling : siblings) Projects().LoadProject(ToWx(sibling), false);
  const bool opened = Projects().LoadProject(ToWx(fileName), true);
  changed_();
  return opened;
}

bool TModules::SaveFile(const std::string& fileName) {
  if (auto* project = FindProject(fileName)) return SaveProject(*project);
  if (auto* editor = FindEditor(fileName)) return SaveEditor(*editor);
  return FoldFileName(fileName) == FoldFileName(WorkspaceFile()) && SaveWorkspace();
}

bool TModules::ReloadFile(const std::string& fileName) {
  auto* editor = Editors().GetBuiltinEditor(FindEditor(fileName));
  if (!editor) return false;
  if (editor->GetModified()) {
    caller_.Log(Format(sNotReloaded, {fileName}));
    return false;
  }
  if (FileExists(fileName)) return editor->Reload();
  editor->SetModified(true);  // the text is kept, and the IDE does not ask about it
  return true;
}

}  // namespace kestrel::codeblocks
