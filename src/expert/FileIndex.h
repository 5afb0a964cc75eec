// Finds files of a list by name without walking it.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

/// The rows of a list of file names, by name ignoring case.  Adding and asking are constant time on average.
class TFileIndex {
 public:
  TFileIndex() = default;
  explicit TFileIndex(const std::vector<std::string>& files);
  void Add(const std::string& fileName, std::size_t row);
  bool Contains(const std::string& fileName) const { return !Rows(fileName).empty(); }
  /// The rows of that name in list order; empty when there is none.  Borrowed until the next Add.
  std::span<const std::size_t> Rows(const std::string& fileName) const;

 private:
  std::unordered_map<std::string, std::vector<std::size_t>> rows_;
};
