#include "common/text/LineMatch.h"

#include <algorithm>
#include <limits>
#include <unordered_map>
#include <unordered_set>

namespace kestrel {
namespace {

/// A range of lines on either side, half open.
struct Gap {
  int left, leftEnd, right, rightEnd;
  bool IsOneSided() const { return left == leftEnd || right == rightEnd; }
};

std::size_t At(int index) { return static_cast<std::size_t>(index); }

class Matcher {
 public:
  Matcher(const LineIds& left, const LineIds& right, const LineMatcher& matchCommon)
      : left_(left), right_(right), matchCommon_(matchCommon) {}
  LineMatches Match() {
    Gap all{0, static_cast<int>(left_.size()), 0, static_cast<int>(right_.size())};
    const int tail = MatchEnds(all);
    MatchBetweenAnchors(all);
    AppendTail(all, tail);
    return std::move(matches_);
  }

 private:
  bool Equal(int left, int right) const { return left_[At(left)] == right_[At(right)]; }

  /// Matches the equal lines at the start of the gap, cuts those at its end off and returns their number.
  int MatchEnds(Gap& gap) {
    for (; !gap.IsOneSided() && Equal(gap.left, gap.right); ++gap.left, ++gap.right)
      matches_.emplace_back(gap.left, gap.right);
    int tail = 0;
    for (; !gap.IsOneSided() && Equal(gap.leftEnd - 1, gap.rightEnd - 1); --gap.leftEnd, --gap.rightEnd)
      ++tail;
    return tail;
  }
  void AppendTail(const Gap& gap, int tail) {
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

  /// The longest sublist that ascends on the right side, too.
  static LineMatches LongestRising(const LineMatches& pairs) {
    std::vector<std::size_t> tops;  // by length: the last pair of the list that ends lowest
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
    const int tail = MatchEnds(gap);
    if (!gap.IsOneSided()) MatchCommonLines(gap);
    AppendTail(gap, tail);
  }

  void MatchCommonLines(const Gap& gap) {
    const auto left = Shared(left_, gap.left, gap.leftEnd, right_, gap.right, gap.rightEnd);
    const auto right = Shared(right_, gap.right, gap.rightEnd, left_, gap.left, gap.leftEnd);
    for (const auto& [i, j] : matchCommon_(Chosen(left_, left), Chosen(right_, right)))
      matches_.emplace_back(left[At(i)], right[At(j)]);
  }

  /// The indices of the lines from `start` to `end` that the other side has, too.
  static std::vector<int> Shared(const LineIds& lines, int start, int end, const LineIds& others,
                                 int otherStart, int otherEnd) {
    const std::unordered_set<int> known(others.begin() + otherStart, others.begin() + otherEnd);
    std::vector<int> shared;
    for (int i = start; i < end; ++i)
      if (known.contains(lines[At(i)])) shared.push_back(i);
    return shared;
  }
  static LineIds Chosen(const LineIds& lines, const std::vector<int>& indices) {
    LineIds chosen;
    for (const int i : indices) chosen.push_back(lines[At(i)]);
    return chosen;
  }

  const LineIds& left_;
  const LineIds& right_;
  const LineMatcher& matchCommon_;
  LineMatches matches_;
};

}  // namespace

LineMatches MatchLines(const LineIds& left, const LineIds& right, const LineMatcher& matchCommon) {
  return Matcher(left, right, matchCommon).Match();
}

}  // namespace kestrel
