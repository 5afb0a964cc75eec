// The open modules, in order of opening and by file name.
#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "workbench/model/Modules.h"

namespace kestrel::workbench {

/// Owns the open modules.  Finding one by name takes constant time: packages ask for each of 65,536 files.
class TModuleIndex {
 public:
  TOpenModule& Add(std::unique_ptr<TOpenModule> module);
  /// Takes the module out; the caller destroys it.
  std::unique_ptr<TOpenModule> Remove(TOpenModule& module);
  /// The module that has a document of that file, compared ignoring case; nullptr for none.
  TOpenModule* Find(const std::string& fileName) const;
  /// Call around a change of a module's file names.
  void Renaming(TOpenModule& module);
  void Renamed(TOpenModule& module);

  const std::vector<std::unique_ptr<TOpenModule>>& InOrder() const { return modules_; }

 private:
  std::vector<std::unique_ptr<TOpenModule>> modules_;
  std::unordered_map<std::string, TOpenModule*> byName_;
};

}  // namespace kestrel::workbench
