// Options blocks belong to the process that made them.  The client gets the address of a byte for each instead, and its
// own cells are told by their addresses.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "Wire.h"

namespace isolation {

/// What crosses for a pointer to options.
struct OptionsKey {
  std::uint64_t Cell = 0;   ///< the client's cell, by its address; 0 for none
  std::uint32_t Block = 0;  ///< a block by its number, itself or what the cell holds; 0 for none

  template <class Archive>
  void serialize(Archive& archive) {
    archive(Cell, Block);
  }
};

class OptionsTable {
 public:
  /// For a cell that SccGetCommandOptions is called with: from now on its contents count.
  OptionsKey OfCell(void* const* cell);
  /// For what a command is called with: a block, or the address of a cell.
  OptionsKey Of(void* options) const;
  /// What the client gets for a block.
  void* AddressOf(std::uint32_t block);
  /// The process that made the blocks has ended.
  void Forget();

 private:
  std::uint32_t BlockAt(const void* address) const;

  std::map<const void*, std::uint32_t> blocks_;  // 0: of a process that has ended
  std::set<void* const*> cells_;
  std::vector<std::unique_ptr<char>> addresses_;
};

}  // namespace isolation
