#include "LineMatch.h"

#include <svn_diff.h>

#include <algorithm>
#include <limits>
#include <string>
#include <unordered_map>
#include <unordered_set>

#include "SvnHandles.h"

namespace svnscc {
namespace {

/// A stretch of lines on either side, as half-open ranges.
struct Gap {
  int left, leftEnd, right, rightEnd;
  bool IsOneSided() const { return left == leftEnd || right == rightEnd; }
};

class Matcher {
 public:
  Matcher(const LineIds& left, const LineIds& right) : left_(left), right_(right) {}
  LineMatches Match() {
    Gap all{0, static_cast<int>(left_.size()), 0, static_cast<int>(right_.size())};
    const int tail = TakeEnds(all);
    MatchBetweenAnchors(all);
    TakeTail(all, tail);
    return std::move(matches_);
  }

 private:
  static std::size_t At(int index) { return static_cast<std::size_t>(index); }
  bool Equal(int left, int right) const { return left_[At(left)] == right_[At(right)]; }

  /// Matches what is equal at the beginning of the gap; returns how many lines are equal at its end, which it shortens.
  int TakeEnds(Gap& gap) {
    for (; !gap.IsOneSided() && Equal(gap.left, gap.right); ++gap.left, ++gap.right)
      matches_.emplace_back(gap.left, gap.right);
    int tail = 0;
    for (; !gap.IsOneSided() && Equal(gap.leftEnd - 1, gap.rightEnd - 1); --gap.leftEnd, --gap.rightEnd)
      ++tail;
    return tail;
  }
  void TakeTail(const Gap& gap, int tail) {
    for (int i = 0; i < tail; ++i) matches_.emplace_back(gap.leftEnd + i, gap.rightEnd + i);
  }

  /// Pairs of lines that occur once in the gap on either side, in the order of the left one.
  LineMatches UniquePairs(const Gap& gap) const {
    struct Place {
      int left = -1, right = -1;
      bool repeated = false;
    };
    std::unordered_map<int, Place> places;
    for (int i = gap.left; i < gap.leftEnd; ++i) {
      Place& place = places[left_[At(i)]];
      place.repeated = place.repeated || place.left >= 0;
      place.left = i;
    }
    for (int i = gap.right; i < gap.rightEnd; ++i) {
      Place& place = places[right_[At(i)]];
      place.repeated = place.repeated || place.right >= 0;
      place.right = i;
    }
    LineMatches pairs;
    for (int i = gap.left; i < gap.leftEnd; ++i) {
      const Place& place = places[left_[At(i)]];
      if (!place.repeated && place.right >= 0) pairs.emplace_back(i, place.right);
    }
    return pairs;
  }

  void MatchBetweenAnchors(const Gap& all) {
    Gap gap = all;
    for (const auto& [left, right] : LongestRising(UniquePairs(all))) {
      gap.leftEnd = left;
      gap.rightEnd = right;
      MatchGap(gap);
      matches_.emplace_back(left, right);
      gap.left = left + 1;
      gap.right = right + 1;
    }
    gap.leftEnd = all.leftEnd;
    gap.rightEnd = all.rightEnd;
    MatchGap(gap);
  }

  /// The longest sublist that rises on the right side too.
  static LineMatches LongestRising(const LineMatches& pairs) {
    std::vector<std::size_t> tops;  // of the best lists by length: where the list of that length ends lowest
    std::vector<std::size_t> before(pairs.size());
    constexpr auto kNone = std::numeric_limits<std::size_t>::max();
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const auto place =
          std::lower_bound(tops.begin(), tops.end(), pairs[i].second,
                           [&](std::size_t top, int right) { return pairs[top].second < right; });
      before[i] = place == tops.begin() ? kNone : *std::prev(place);
      if (place == tops.end())
        tops.push_back(i);
      else
        *place = i;
    }
    LineMatches rising;
    for (auto i = tops.empty() ? kNone : tops.back(); i != kNone; i = before[i]) rising.push_back(pairs[i]);
    std::reverse(rising.begin(), rising.end());
    return rising;
  }

  void MatchGap(Gap gap) {
    const int tail = TakeEnds(gap);
    if (!gap.IsOneSided()) MatchCommonLines(gap);
    TakeTail(gap, tail);
  }

  /// Leaves the comparison to libsvn_diff, without the lines that only one side has.
  void MatchCommonLines(const Gap& gap) {
    const auto left = Shared(left_, gap.left, gap.leftEnd, right_, gap.right, gap.rightEnd);
    const auto right = Shared(right_, gap.right, gap.rightEnd, left_, gap.left, gap.leftEnd);
    if (left.empty()) return;
    const std::string leftText = TextOf(left_, left);
    const std::string rightText = TextOf(right_, right);
    const svn_string_t a{leftText.data(), leftText.size()};
    const svn_string_t b{rightText.data(), rightText.size()};
    const Pool pool;
    svn_diff_t* found = nullptr;
    Check(svn_diff_mem_string_diff(&found, &a, &b, svn_diff_file_options_create(pool), pool));
    svn_diff_output_fns_t functions{};
    functions.output_common = TakeCommon;
    functions.output_diff_modified = Ignore;
    Taker taker{left, right, matches_, nullptr};
    svn_error_t* error = svn_diff_output2(found, &taker, &functions, nullptr, nullptr);
    Check(error, taker.kept);
  }

  /// The indices of lines from `start` to `end` that the other side has too.
  static std::vector<int> Shared(const LineIds& lines, int start, int end, const LineIds& others,
                                 int otherStart, int otherEnd) {
    const std::unordered_set<int> known(others.begin() + otherStart, others.begin() + otherEnd);
    std::vector<int> shared;
    for (int i = start; i < end; ++i)
      if (known.contains(lines[At(i)])) shared.push_back(i);
    return shared;
  }
  static std::string TextOf(const LineIds& lines, const std::vector<int>& chosen) {
    std::string text;
    for (const int i : chosen) text += std::to_string(lines[At(i)]) + '\n';
    return text;
  }

  struct Taker {
    const std::vector<int>& left;
    const std::vector<int>& right;
    LineMatches& matches;
    std::exception_ptr kept;
  };
  static svn_error_t* TakeCommon(void* baton, apr_off_t left, apr_off_t count, apr_off_t right, apr_off_t,
                                 apr_off_t, apr_off_t) noexcept {
    auto& self = *static_cast<Taker*>(baton);
    return Contain(self.kept, [&] {
      for (apr_off_t i = 0; i < count; ++i)
        self.matches.emplace_back(self.left[static_cast<std::size_t>(left + i)],
                                  self.right[static_cast<std::size_t>(right + i)]);
    });
  }
  static svn_error_t* Ignore(void*, apr_off_t, apr_off_t, apr_off_t, apr_off_t, apr_off_t,
                             apr_off_t) noexcept {
    return SVN_NO_ERROR;
  }

  const LineIds& left_;
  const LineIds& right_;
  LineMatches matches_;
};

}  // namespace

LineMatches MatchLines(const LineIds& left, const LineIds& right) { return Matcher(left, right).Match(); }

}  // namespace svnscc
