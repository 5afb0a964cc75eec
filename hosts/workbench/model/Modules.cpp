#include "workbench/model/Modules.h"

#include <algorithm>
#include <unordered_set>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel::workbench {

namespace {

/// A key that is equal for all spellings of a path stored in `directory`.
std::string Key(const std::string& directory, const std::string& stored) {
  return FoldCase(FromStoredPath(directory, stored));
}

}  // namespace

TDocument* TOpenModule::FindDocument(const std::string& fileName) const {
  for (const auto& document : documents_)
    if (SameText(document->FileName(), fileName)) return document.get();
  return nullptr;
}

IOTAEditor* TOpenModule::GetEditor(int index) {
  return index >= 0 && index < GetEditorCount() ? documents_[static_cast<std::size_t>(index)].get() : nullptr;
}

TUnit::TUnit(const std::string& fileName, const TPackageCaller& caller) : TOpenModule(fileName) {
  if (SameText(ExtractFileExt(fileName), kFormExt)) {
    AddDocument<TFormEditor>(fileName, caller);
    return;
  }
  AddDocument<TSourceEditor>(fileName, caller);
  const std::string form = ChangeFileExt(fileName, kFormExt);
  if (SameText(ExtractFileExt(fileName), kUnitExt) && FileExists(form))
    AddDocument<TFormEditor>(form, caller);
}

void TUnit::Rename(const std::string& fileName) {
  SetFileName(fileName);
  Documents()[0]->Rename(fileName);
  if (Documents().size() > 1) Documents()[1]->Rename(ChangeFileExt(fileName, kFormExt));
}

TProject::TProject(const std::string& fileName, const TPackageCaller& caller)
    : TOpenModule(fileName), definition_(AddDocument<TDefinitionEditor<TProjectFile>>(fileName, caller)) {}

int TProject::GetModuleCount() { return static_cast<int>(definition_.Get().Items().size()); }

std::string TProject::ModuleFileName(int index) {
  if (index < 0 || index >= GetModuleCount()) return {};
  return FromStoredPath(ExtractFileDir(FileName()),
                        definition_.Get().Items()[static_cast<std::size_t>(index)]);
}

int TProject::IndexOfModuleFile(const std::string& fileName) const {
  const std::string directory = ExtractFileDir(FileName());
  const std::string wanted = Key(directory, fileName);
  const auto& items = definition_.Get().Items();
  const auto found =
      std::ranges::find_if(items, [&](const auto& item) { return Key(directory, item) == wanted; });
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

std::size_t TProject::AddModuleFiles(const std::vector<std::string>& fileNames) {
  const std::string directory = ExtractFileDir(FileName());
  std::unordered_set<std::string> known;
  for (const auto& item : definition_.Get().Items()) known.insert(Key(directory, item));
  std::size_t added = 0;
  for (const auto& fileName : fileNames) {
    if (!known.insert(Key(directory, fileName)).second) continue;
    definition_.Edit().Items().push_back(ToStoredPath(directory, fileName));
    ++added;
  }
  return added;
}

void TProject::RemoveModuleFile(int index) {
  if (index >= 0 && index < GetModuleCount()) {
    auto& items = definition_.Edit().Items();
    items.erase(items.begin() + index);
  }
}

TProjectGroup::TProjectGroup(const std::string& fileName, const TPackageCaller& caller)
    : TOpenModule(fileName), definition_(AddDocument<TDefinitionEditor<TGroupFile>>(fileName, caller)) {}

std::string TProjectGroup::Stored(const TProject& project) const {
  return ToStoredPath(ExtractFileDir(FileName()), project.FileName());
}

void TProjectGroup::Rename(const std::string& fileName) {
  const std::string before = ExtractFileDir(FileName());
  const std::string after = ExtractFileDir(fileName);
  TGroupFile& file = definition_.Edit();
  for (std::string& item : file.Items()) item = ToStoredPath(after, FromStoredPath(before, item));
  SetFileName(fileName);
  definition_.Rename(fileName);
  if (active_) file.SetActive(Stored(*active_));
}

void TProjectGroup::Add(TProject& project) {
  definition_.Edit().Items().push_back(Stored(project));
  projects_.push_back(&project);
}

void TProjectGroup::Remove(TProject& project) {
  Detach(project);
  const std::string directory = ExtractFileDir(FileName());
  const std::string gone = Key(directory, project.FileName());
  std::erase_if(definition_.Edit().Items(), [&](const auto& item) { return Key(directory, item) == gone; });
  if (!active_ && !projects_.empty()) SetActive(*projects_.front());
}

void TProjectGroup::Detach(TProject& project) {
  std::erase(projects_, &project);
  if (active_ == &project) active_ = nullptr;
}

void TProjectGroup::SetActive(TProject& project) {
  active_ = &project;
  definition_.EditWithoutDirty().SetActive(Stored(project));
}

void TProjectGroup::Attach(TProject& project, bool active) {
  projects_.push_back(&project);
  if (active || !active_) active_ = &project;
}

}  // namespace kestrel::workbench
