#include "workbench/model/ModuleIndex.h"

#include <algorithm>

#include "system/Text.h"

namespace kestrel::workbench {

TOpenModule& TModuleIndex::Add(std::unique_ptr<TOpenModule> module) {
  modules_.push_back(std::move(module));
  Renamed(*modules_.back());
  return *modules_.back();
}

std::unique_ptr<TOpenModule> TModuleIndex::Remove(TOpenModule& module) {
  Renaming(module);
  // From the end, because closing everything removes in reverse order.
  const auto found =
      std::find_if(modules_.rbegin(), modules_.rend(), [&](const auto& m) { return m.get() == &module; });
  if (found == modules_.rend()) return nullptr;
  auto removed = std::move(*found);
  modules_.erase(std::next(found).base());
  return removed;
}

TOpenModule* TModuleIndex::Find(const std::string& fileName) const {
  const auto found = byName_.find(FoldCase(fileName));
  return found == byName_.end() ? nullptr : found->second;
}

void TModuleIndex::Renaming(TOpenModule& module) {
  for (const auto& document : module.Documents()) byName_.erase(FoldCase(document->FileName()));
}

void TModuleIndex::Renamed(TOpenModule& module) {
  for (const auto& document : module.Documents()) byName_.emplace(FoldCase(document->FileName()), &module);
}

}  // namespace kestrel::workbench
