// Two texts side by side, line by line.  Rules only: the window that shows them is DiffWindow.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel {

struct DiffOptions {
  bool IgnoreCase = false;
  bool IgnoreSpace = false;  // line ends included
};
/// What the flags of SccDiff ask for.
DiffOptions ToDiffOptions(scc::Long flags);

enum class DiffKind { Same, Changed, Added, Removed };

/// One row of the two columns: line numbers from 0, or kNoLine where the other side has a line more.
struct DiffRow {
  static constexpr int kNoLine = -1;
  int Left;
  int Right;
  DiffKind Kind;
};

/// How the texts differ apart from what stands in their lines.
enum class LineEnds {
  Alike,
  OtherStyle,    // CRLF here, LF there
  LeftUnended,   // the last line of the left text has no end, that of the right one has
  RightUnended,  // the other way round
};

/// A range of bytes in a line.
struct Span {
  std::size_t Start;
  std::size_t Length;
};

class FileDiff {
 public:
  /// Texts are UTF-8 with any line ends.
  FileDiff(std::string left, std::string right, const DiffOptions& options);
  FileDiff(const FileDiff&) = delete;
  FileDiff& operator=(const FileDiff&) = delete;

  void Compare(const DiffOptions& options);

  const std::vector<DiffRow>& Rows() const { return rows_; }
  /// The rows' texts without line ends; empty where there is no line.
  std::string_view LeftText(const DiffRow& row) const { return LineOf(leftLines_, row.Left); }
  std::string_view RightText(const DiffRow& row) const { return LineOf(rightLines_, row.Right); }
  /// The first row of every difference, rising.
  const std::vector<std::size_t>& Differences() const { return differences_; }
  /// The nearest difference that begins after (before) `row`.
  std::optional<std::size_t> Next(std::size_t row) const;
  std::optional<std::size_t> Previous(std::size_t row) const;

  LineEnds Ends() const { return ends_; }
  /// Nothing differs that the options do not ignore.
  bool Same() const { return differences_.empty() && endsMatch_; }

 private:
  using Lines = std::vector<std::string_view>;
  static std::string_view LineOf(const Lines& lines, int number);
  void AppendDifference(int left, int leftCount, int right, int rightCount);

  std::string left_;
  std::string right_;
  Lines leftLines_;
  Lines rightLines_;
  std::vector<DiffRow> rows_;
  std::vector<std::size_t> differences_;
  LineEnds ends_ = LineEnds::Alike;
  bool endsMatch_ = true;
};

/// What differs between two lines of UTF-8: all but their common beginning and end, at character borders.
std::pair<Span, Span> ChangedParts(std::string_view left, std::string_view right);

}  // namespace kestrel
