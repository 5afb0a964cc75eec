// Index of a file list by name.
#pragma once

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace kestrel::addin {

/// Finds the rows of a file name, ignoring case, in constant time on average.
class TFileIndex {
 public:
  TFileIndex() = default;
  explicit TFileIndex(const std::vector<std::string>& files);
  /// Calls `visit(row)` for each row of that name, in list order.
  void ForEachRow(const std::string& fileName, const auto& visit) const {
    for (auto row = First(fileName); row != kNone; row = next_[row]) visit(row);
  }

 private:
  static constexpr auto kNone = static_cast<std::size_t>(-1);
  struct TChain {
    std::size_t First;
    std::size_t Last;
  };
  std::size_t First(const std::string& fileName) const;

  std::unordered_map<std::string, TChain> chains_;  // by folded name
  std::vector<std::size_t> next_;                   // the next row of the same name, or kNone
};

}  // namespace kestrel::addin
