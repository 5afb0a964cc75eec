// Which lines of two texts correspond.
#pragma once

#include <utility>
#include <vector>

namespace kestrel {

/// Lines as numbers: equal lines have equal numbers.
using LineIds = std::vector<int>;
/// Pairs of indices of equal lines, rising on both sides.
using LineMatches = std::vector<std::pair<int, int>>;

/// A longest (nearly) list of matches.  Lines that occur once on either side are matched first and the rest between them:
/// that is what people take for the correspondence, and it keeps long texts with little in common cheap.
LineMatches MatchLines(const LineIds& left, const LineIds& right);

}  // namespace kestrel
