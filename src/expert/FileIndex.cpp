#include "expert/FileIndex.h"

#include <utility>

#include "system/Text.h"

namespace kestrel::addin {

TFileIndex::TFileIndex(const std::vector<std::string>& files) : next_(files.size(), kNone) {
  chains_.reserve(files.size());
  for (std::size_t row = 0; row < files.size(); ++row) {
    const auto [chain, isNew] = chains_.try_emplace(FoldCase(files[row]), row, row);
    if (!isNew) next_[std::exchange(chain->second.Last, row)] = row;
  }
}

std::size_t TFileIndex::First(const std::string& fileName) const {
  const auto found = chains_.find(FoldCase(fileName));
  return found == chains_.end() ? kNone : found->second.First;
}

}  // namespace kestrel::addin
