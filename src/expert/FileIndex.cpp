#include "expert/FileIndex.h"

#include "host/Text.h"

TFileIndex::TFileIndex(const std::vector<std::string>& files) {
  rows_.reserve(files.size());
  for (std::size_t row = 0; row < files.size(); ++row) Add(files[row], row);
}

void TFileIndex::Add(const std::string& fileName, std::size_t row) {
  rows_[FoldCase(fileName)].push_back(row);
}

std::span<const std::size_t> TFileIndex::Rows(const std::string& fileName) const {
  const auto found = rows_.find(FoldCase(fileName));
  return found == rows_.end() ? std::span<const std::size_t>() : std::span<const std::size_t>(found->second);
}
