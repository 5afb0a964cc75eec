// Workspace: closing.
#include <algorithm>

#include "system/Paths.h"
#include "system/Text.h"
#include "workbench/model/Workspace.h"

namespace kestrel::workbench {

bool TWorkspace::AskAboutModified(const std::vector<TOpenModule*>& modules) {
  for (TOpenModule* module : modules) {
    if (module == group_ && group_->IsUnsaved()) continue;
    for (const auto& document : module->Documents()) {
      if (!document->GetModified()) continue;
      const TSaveAnswer answer = ui_.AskSave(document->FileName());
      if (answer == TSaveAnswer::Cancel) return false;
      if (answer == TSaveAnswer::Save) Save(*document);
    }
  }
  return true;
}

bool TWorkspace::AskAboutGroup() {
  // A single project opens again without its group; a group of several would be lost.
  if (!group_ || !group_->IsUnsaved() || group_->Projects().size() < 2) return true;
  switch (ui_.AskSave(group_->FileName())) {
    case TSaveAnswer::Save:
      return SaveGroupAs();
    case TSaveAnswer::Discard:
      return true;
    case TSaveAnswer::Cancel:
      break;
  }
  return false;
}

std::vector<TOpenModule*> TWorkspace::ClosingOrder() const {
  // Units first, in reverse order of opening; then the active project, whose provider project ends with it; then the
  // other projects; the group last.
  const auto rank = [&](const TOpenModule* module) {
    if (module == group_) return 3;
    if (!dynamic_cast<const TProject*>(module)) return 0;
    return group_ && group_->Active() == module ? 1 : 2;
  };
  std::vector<TOpenModule*> order;
  for (auto module = index_.InOrder().rbegin(); module != index_.InOrder().rend(); ++module)
    order.push_back(module->get());
  std::ranges::stable_sort(order, {}, rank);
  return order;
}

bool TWorkspace::CloseAll() {
  const auto order = ClosingOrder();
  if (!AskAboutModified(order) || !AskAboutGroup()) return false;
  RememberActive();
  const bool closed = CloseEach(order);
  ui_.ProjectsChanged();
  return closed;
}

void TWorkspace::CloseAllWithoutSaving() {
  for (TOpenModule* module : ClosingOrder()) {
    notifications_.FileClosing(module->FileName());
    Forget(*module);
  }
  ui_.ProjectsChanged();
}

void TWorkspace::RememberActive() {
  if (!group_ || !group_->Active() || group_->IsUnsaved()) return;
  TDefinitionEditor<TGroupFile>& definition = group_->Definition();
  lastActive_[group_->FileName()] = definition.Get().Active();
  if (definition.IsReadOnly() || definition.GetModified() || !group_->ActiveDiffersFromFile()) return;
  try {
    Save(definition);
  } catch (const std::exception& e) {
    Log(e.what());
  }
}

bool TWorkspace::CloseEach(const std::vector<TOpenModule*>& modules) {
  // By name: a package that is notified of one closing may close others.
  std::vector<std::string> names;
  names.reserve(modules.size());
  for (const TOpenModule* module : modules) names.push_back(module->FileName());
  return std::ranges::all_of(names, [&](const std::string& name) {
    TOpenModule* module = index_.Find(name);
    return !module || CloseOne(*module);
  });
}

bool TWorkspace::CloseOne(TOpenModule& module) {
  if (!notifications_.FileClosing(module.FileName())) return false;
  Forget(module);
  return true;
}

void TWorkspace::Forget(TOpenModule& module) {
  for (const auto& document : module.Documents())
    if (auto* text = dynamic_cast<TTextEditor*>(document.get())) ui_.EditorClosing(*text);
  if (auto* project = dynamic_cast<TProject*>(&module); project && group_) group_->Detach(*project);
  if (&module == group_) group_ = nullptr;
  index_.Remove(module);
}

std::vector<TOpenModule*> TWorkspace::OpenUnitsOf(TProject& project) const {
  std::vector<TOpenModule*> units;
  for (int i = 0; i < project.GetModuleCount(); ++i) {
    TOpenModule* unit = index_.Find(project.ModuleFileName(i));
    if (unit && std::ranges::find(units, unit) == units.end()) units.push_back(unit);
  }
  return units;
}

bool TWorkspace::Close(TOpenModule& module) {
  if (&module == group_) return CloseAll();
  if (auto* project = dynamic_cast<TProject*>(&module)) return CloseProject(*project);
  return AskAboutModified({&module}) && CloseOne(module);
}

bool TWorkspace::CloseProject(TProject& project) {
  if (group_->Projects().size() == 1) return CloseAll();
  auto modules = OpenUnitsOf(project);
  modules.push_back(&project);
  if (!AskAboutModified(modules)) return false;
  modules.pop_back();
  if (!CloseEach(modules) || !notifications_.FileClosing(project.FileName())) return false;
  const bool wasActive = group_->Active() == &project;
  group_->Remove(project);
  Forget(project);
  ui_.ProjectsChanged();
  if (wasActive && group_->Active()) notifications_.ActiveProjectChanged(group_->Active()->FileName());
  return true;
}

}  // namespace kestrel::workbench
