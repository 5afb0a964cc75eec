// Maps the options pointers of the client to numbers.  Options blocks live in the provider's process; for each block the
// client gets the address of a placeholder byte.  A cell, the client's variable that holds such a pointer, is identified by
// its address.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "isolation/Wire.h"

namespace kestrel::isolation {

/// An options pointer on the wire.
struct OptionsKey {
  std::uint64_t Cell = 0;   ///< address of the client's cell; 0 for none
  std::uint32_t Block = 0;  ///< number of the block, passed directly or held by the cell; 0 for none

  template <class Archive>
  void serialize(Archive& archive) {
    archive(Cell, Block);
  }
};

class OptionsTable {
 public:
  /// Key of a cell that is passed to SccGetCommandOptions; registers it, so that later keys of it include its block.
  OptionsKey KeyOfCell(void* const* cell);
  /// Key of the options argument of a command: a block or the address of a cell.
  OptionsKey KeyOf(void* options) const;
  /// Returns the address that the client gets for a block; null for 0.
  void* AddressOf(std::uint32_t block);
  /// Invalidates all blocks, because the process that made them has ended.
  void InvalidateBlocks();

 private:
  std::uint32_t BlockAt(const void* address) const;

  std::map<const void*, std::uint32_t> blocks_;  // 0 for invalidated ones
  std::set<void* const*> cells_;
  std::vector<std::unique_ptr<char>> addresses_;
};

}  // namespace kestrel::isolation
