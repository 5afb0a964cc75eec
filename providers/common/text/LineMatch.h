// Which lines of two texts correspond.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace kestrel {

/// Lines as numbers: equal lines have equal numbers.
using LineIds = std::vector<int>;
/// Pairs of indices of equal lines, ascending on both sides.
using LineMatches = std::vector<std::pair<int, int>>;

/// Finds a longest list of matches.  Each provider supplies the one of its library.
using LineMatcher = std::function<LineMatches(const LineIds& left, const LineIds& right)>;

/// A nearly longest list of matches.  Lines that occur once on either side are matched first, then `matchCommon` gets the
/// lines between them that both sides have: users expect that, and it is fast for long texts with little in common.
LineMatches MatchLines(const LineIds& left, const LineIds& right, const LineMatcher& matchCommon);

}  // namespace kestrel
