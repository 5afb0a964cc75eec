#include "isolation/OptionsTable.h"

namespace kestrel::isolation {

std::uint32_t OptionsTable::BlockAt(const void* address) const {
  const auto known = blocks_.find(address);
  return known != blocks_.end() ? known->second : 0;
}

OptionsKey OptionsTable::KeyOfCell(void* const* cell) {
  if (cell == nullptr) return {};
  cells_.insert(cell);
  return {reinterpret_cast<std::uintptr_t>(cell), BlockAt(*cell)};
}

OptionsKey OptionsTable::KeyOf(void* options) const {
  if (options == nullptr || blocks_.contains(options)) return {0, BlockAt(options)};
  // Only registered cells are dereferenced.
  auto* const* cell = static_cast<void* const*>(options);
  return {reinterpret_cast<std::uintptr_t>(options), cells_.contains(cell) ? BlockAt(*cell) : 0};
}

void* OptionsTable::AddressOf(std::uint32_t block) {
  if (block == 0) return nullptr;
  for (const auto& [address, number] : blocks_)
    if (number == block) return const_cast<void*>(address);
  addresses_.push_back(std::make_unique<char>());
  blocks_[addresses_.back().get()] = block;
  return addresses_.back().get();
}

void OptionsTable::InvalidateBlocks() {
  for (auto& [address, number] : blocks_) number = 0;
}

}  // namespace kestrel::isolation
