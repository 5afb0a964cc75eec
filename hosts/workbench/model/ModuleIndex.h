// The open modules, in order of opening and by file name.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "workbench/model/Modules.h"

namespace kestrel::workbench {

/// Owns the open modules. Finding one by name takes constant time, as packages look up each of up to 65,536 files.
class TModuleIndex {
 public:
  TOpenModule& Add(std::unique_ptr<TOpenModule> module);
  /// Removes the module and hands it to the caller.
  std::unique_ptr<TOpenModule> Remove(TOpenModule& module);
  /// The module with a document of that file name, ignoring case; null if there is none.
  TOpenModule* Find(const std::string& fileName) const;
  /// Call before and after a change of a module's file names.
  void Renaming(TOpenModule& module);
  void Renamed(TOpenModule& module);

  const std::vector<std::unique_ptr<TOpenModule>>& InOrder() const { return modules_; }

 private:
  std::vector<std::unique_ptr<TOpenModule>> modules_;
  std::unordered_map<std::string, TOpenModule*> byName_;
};

}  // namespace kestrel::workbench
