#include "workbench/model/Workspace.h"

#include <stdexcept>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"
#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

void TWorkspace::Save(TDocument& document) {
  document.Save();
  if (group_ && &document == &group_->Definition()) group_->RecordSaved();
  Changed(document);
}

void TWorkspace::Changed(TDocument& document) {
  if (auto* text = dynamic_cast<TTextEditor*>(&document))
    ui_.EditorChanged(*text);
  else
    ui_.ProjectsChanged();
}

bool TWorkspace::SaveAll() {
  for (const auto& module : index_.InOrder())
    for (const auto& document : module->Documents()) {
      const bool needsName = group_ && document.get() == &group_->Definition() && group_->IsUnsaved();
      // The user does not work on a group that was never saved; closing asks for its name.
      if (document->GetModified() && !needsName) Save(*document);
    }
  return true;
}

bool TWorkspace::SaveUnitAs(TUnit& unit) {
  const std::string before = unit.FileName();
  const std::string name = ui_.AskSaveName(before);
  if (name.empty()) return false;
  const std::string after = FullPath(name);
  if (TOpenModule* other = index_.Find(after); other && other != &unit)
    throw std::runtime_error(Format(sOpenElsewhere, {after}));
  index_.Renaming(unit);
  unit.Rename(after);
  index_.Renamed(unit);
  for (const auto& document : unit.Documents()) Save(*document);
  TProject* project = ActiveProject();
  const int listed = project ? project->IndexOfModuleFile(before) : -1;
  if (listed >= 0) {
    project->Definition().Edit().Items()[static_cast<std::size_t>(listed)] =
        ToStoredPath(ExtractFileDir(project->FileName()), after);
    ui_.ProjectsChanged();
  }
  return true;
}

bool TWorkspace::SaveGroupAs() {
  if (!group_) throw std::runtime_error(sNoProject);
  const std::string name = ui_.AskSaveName(group_->FileName());
  if (name.empty()) return false;
  index_.Renaming(*group_);
  group_->Rename(FullPath(name));
  index_.Renamed(*group_);
  Save(group_->Definition());
  return true;
}

bool TWorkspace::Reload(const std::string& fileName) {
  TOpenModule* module = index_.Find(fileName);
  TDocument* document = module ? module->FindDocument(fileName) : nullptr;
  if (!document) return false;
  if (module == group_) return ReopenGroup();
  return ReloadUnlessKept(*document);
}

bool TWorkspace::ReloadUnlessKept(TDocument& document) {
  const bool kept = document.GetModified() && !ui_.AskReload(document.FileName());
  if (!kept)
    document.Load();
  else
    document.AcceptDisk();
  Changed(document);
  return !kept;
}

bool TWorkspace::ReopenGroup() {
  const std::string file = group_->FileName();
  return CloseAll() && Open(file);
}

void TWorkspace::CheckDocument(TDocument& document) {
  auto* text = dynamic_cast<TTextEditor*>(&document);
  switch (document.CheckDisk()) {
    case TDiskChange::None:
      return;
    case TDiskChange::Attributes:
      break;
    case TDiskChange::Deleted:
      document.AcceptDisk();
      if (text) text->MarkFileMissing();
      Log(Format(sGone, {document.FileName()}));
      break;
    case TDiskChange::Contents:
      if (ReloadUnlessKept(document)) Log(Format(sReloaded, {document.FileName()}));
      return;
  }
  if (text) ui_.EditorChanged(*text);
}

void TWorkspace::CheckDisk() {
  // By name: answering a question can close modules.
  std::vector<std::string> names;
  for (const auto& module : index_.InOrder())
    for (const auto& document : module->Documents()) names.push_back(document->FileName());
  for (const auto& name : names) {
    TOpenModule* module = index_.Find(name);
    if (!module || (module == group_ && group_->IsUnsaved())) continue;
    if (module == group_ && group_->Definition().CheckDisk() == TDiskChange::Contents) {
      ReopenGroup();
      return;
    }
    try {
      if (TDocument* document = module->FindDocument(name)) CheckDocument(*document);
    } catch (const std::exception& e) {
      Log(Format(sCannotReload, {name, e.what()}));
    }
  }
}

void TWorkspace::SetActiveProject(TProject& project) {
  if (!group_ || group_->Active() == &project) return;
  group_->SetActive(project);
  ui_.ProjectsChanged();
  notifications_.ActiveProjectChanged(project.FileName());
}

std::size_t TWorkspace::AddToProject(const std::vector<std::string>& fileNames) {
  TProject* project = ActiveProject();
  if (!project) throw std::runtime_error(sNoProject);
  std::vector<std::string> full;
  full.reserve(fileNames.size());
  for (const auto& name : fileNames) full.push_back(FullPath(name));
  const std::size_t added = project->AddModuleFiles(full);
  if (added) ui_.ProjectsChanged();
  return added;
}

void TWorkspace::RemoveFromProject(TProject& project, int index) {
  project.RemoveModuleFile(index);
  ui_.ProjectsChanged();
}

TOpenModule* TWorkspace::CurrentModule() {
  TTextEditor* editor = ui_.ActiveEditor();
  return editor ? index_.Find(editor->FileName()) : nullptr;
}

}  // namespace kestrel::workbench
