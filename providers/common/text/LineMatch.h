// Which lines of two texts correspond.
#pragma once

#include <utility>
#include <vector>

namespace kestrel {

/// Lines as numbers: equal lines have equal numbers.
using LineIds = std::vector<int>;
/// Pairs of indices of equal lines, ascending on both sides.
using LineMatches = std::vector<std::pair<int, int>>;

/// A nearly longest list of matches.  Lines that occur once on either side are matched first, the rest between them: users
/// expect that, and it is fast for long texts with little in common.
LineMatches MatchLines(const LineIds& left, const LineIds& right);

}  // namespace kestrel
