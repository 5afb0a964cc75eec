#include "common/text/LineMatch.h"

#include <algorithm>
#include <cstdlib>
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

/// A longest common subsequence: E. W. Myers, "An O(ND) Difference Algorithm and Its Variations", in linear space.
class ShortestEdit {
 public:
  ShortestEdit(LineIds left, LineIds right) : left_(std::move(left)), right_(std::move(right)) {}
  LineMatches Match() {
    MatchGap({0, static_cast<int>(left_.size()), 0, static_cast<int>(right_.size())});
    return std::move(matches_);
  }

 private:
  static constexpr int kUnreached = -1;

  /// How far paths from one end of a gap reach, by diagonal (left minus right index).
  class Front {
   public:
    Front(int size, int leftSize, int rightSize)
        : middle_(size + 1),
          leftSize_(leftSize),
          rightSize_(rightSize),
          reached_(At(2 * size + 3), kUnreached) {}
    int& operator[](int diagonal) { return reached_[At(middle_ + diagonal)]; }
    /// One edit further: where the next run of equal lines on `diagonal` starts; kUnreached outside the gap.
    int Step(int diagonal, int edits) {
      if (edits == 0) return 0;
      const int above = (*this)[diagonal + 1];
      const int before = (*this)[diagonal - 1];
      const int down = above != kUnreached && above - diagonal <= rightSize_ ? above : kUnreached;
      const int across = before != kUnreached && before < leftSize_ ? before + 1 : kUnreached;
      return std::max(down, across);
    }

   private:
    int middle_, leftSize_, rightSize_;
    std::vector<int> reached_;
  };

  void MatchGap(Gap gap) {
    for (; !gap.IsOneSided() && left_[At(gap.left)] == right_[At(gap.right)]; ++gap.left, ++gap.right)
      matches_.emplace_back(gap.left, gap.right);
    int tail = 0;
    for (; !gap.IsOneSided() && left_[At(gap.leftEnd - 1)] == right_[At(gap.rightEnd - 1)];
         --gap.leftEnd, --gap.rightEnd)
      ++tail;
    if (!gap.IsOneSided()) {
      const Gap run = MiddleRun(gap);
      MatchGap({gap.left, run.left, gap.right, run.right});
      for (int i = 0; i < run.leftEnd - run.left; ++i) matches_.emplace_back(run.left + i, run.right + i);
      MatchGap({run.leftEnd, gap.leftEnd, run.rightEnd, gap.rightEnd});
    }
    for (int i = 0; i < tail; ++i) matches_.emplace_back(gap.leftEnd + i, gap.rightEnd + i);
  }

  /// The run of equal lines, perhaps an empty one, in the middle of a shortest edit.  The gap's ends differ.
  Gap MiddleRun(const Gap& gap) const {
    const int n = gap.leftEnd - gap.left;
    const int m = gap.rightEnd - gap.right;
    const int delta = n - m;
    const int most = (n + m + 1) / 2;
    Front forward(most, n, m);
    Front backward(most, n, m);
    for (int edits = 0;; ++edits) {
      for (int k = -edits; k <= edits; k += 2) {
        const int start = forward.Step(k, edits);
        if (start == kUnreached) continue;
        int x = start;
        while (x < n && x - k < m && left_[At(gap.left + x)] == right_[At(gap.right + x - k)]) ++x;
        forward[k] = x;
        const int other = delta - k;
        if (delta % 2 != 0 && std::abs(other) < edits && backward[other] != kUnreached &&
            x + backward[other] >= n)
          return {gap.left + start, gap.left + x, gap.right + start - k, gap.right + x - k};
      }
      for (int k = -edits; k <= edits; k += 2) {
        const int start = backward.Step(k, edits);
        if (start == kUnreached) continue;
        int x = start;
        while (x < n && x - k < m && left_[At(gap.leftEnd - 1 - x)] == right_[At(gap.rightEnd - 1 - x + k)])
          ++x;
        backward[k] = x;
        const int other = delta - k;
        if (delta % 2 == 0 && std::abs(other) <= edits && forward[other] != kUnreached &&
            x + forward[other] >= n)
          return {gap.leftEnd - x, gap.leftEnd - start, gap.rightEnd - x + k, gap.rightEnd - start + k};
      }
    }
  }

  LineIds left_;
  LineIds right_;
  LineMatches matches_;
};

class Matcher {
 public:
  Matcher(const LineIds& left, const LineIds& right) : left_(left), right_(right) {}
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
    for (const auto& [i, j] : ShortestEdit(Chosen(left_, left), Chosen(right_, right)).Match())
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
  LineMatches matches_;
};

}  // namespace

LineMatches MatchLines(const LineIds& left, const LineIds& right) { return Matcher(left, right).Match(); }

}  // namespace kestrel
