// Compares two texts line by line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "common/text/LineMatch.h"
#include "scc/sccdefs.h"

namespace kestrel {

struct DiffOptions {
  bool IgnoreCase = false;
  bool IgnoreSpace = false;  // line ends included
};
/// From the flags of SccDiff.
DiffOptions ToDiffOptions(scc::Long flags);

enum class DiffKind { Same, Changed, Added, Removed };

/// One row of the two columns: line numbers from 0, kNoLine on the side that has no line here.
struct DiffRow {
  static constexpr int kNoLine = -1;
  int Left;
  int Right;
  DiffKind Kind;
};

/// How the line ends of the texts differ.
enum class LineEnds {
  Alike,
  OtherStyle,    // CRLF here, LF there
  LeftUnended,   // only the last line of the left text has no end
  RightUnended,  // only the last line of the right text has no end
};

/// A range of bytes in a line.
struct Span {
  std::size_t Start;
  std::size_t Length;
};

class FileDiff {
 public:
  /// Texts are UTF-8 with any line ends.
  FileDiff(std::string left, std::string right, const DiffOptions& options, LineMatcher matchCommon);
  FileDiff(const FileDiff&) = delete;
  FileDiff& operator=(const FileDiff&) = delete;

  void Compare(const DiffOptions& options);

  const std::vector<DiffRow>& Rows() const { return rows_; }
  /// The line without its end; empty where there is none.
  std::string_view LeftText(const DiffRow& row) const { return LineOf(leftLines_, row.Left); }
  std::string_view RightText(const DiffRow& row) const { return LineOf(rightLines_, row.Right); }
  /// The first row of every difference, ascending.
  const std::vector<std::size_t>& Differences() const { return differences_; }
  /// The first row of the nearest difference after (before) `row`.
  std::optional<std::size_t> Next(std::size_t row) const;
  std::optional<std::size_t> Previous(std::size_t row) const;

  LineEnds Ends() const { return ends_; }
  /// Whether the texts are equal apart from what the options ignore.
  bool Same() const { return differences_.empty() && endsMatch_; }

 private:
  using Lines = std::vector<std::string_view>;
  static std::string_view LineOf(const Lines& lines, int number);
  void AppendDifference(int left, int leftCount, int right, int rightCount);

  LineMatcher matchCommon_;
  std::string left_;
  std::string right_;
  Lines leftLines_;
  Lines rightLines_;
  std::vector<DiffRow> rows_;
  std::vector<std::size_t> differences_;
  LineEnds ends_ = LineEnds::Alike;
  bool endsMatch_ = true;
};

/// The parts of two UTF-8 lines between their common prefix and suffix, cut at character boundaries.
std::pair<Span, Span> ChangedParts(std::string_view left, std::string_view right);

}  // namespace kestrel
