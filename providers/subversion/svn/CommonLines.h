// Comparison of texts by libsvn_diff.
#pragma once

#include "common/text/LineMatch.h"

namespace kestrel::svnscc {

/// A LineMatcher.  Throws Failure.
LineMatches MatchCommonLines(const LineIds& left, const LineIds& right);

}  // namespace kestrel::svnscc
