// Visibility of the items of a package's menu.
#pragma once

#include <vector>

#include "host/Menus.h"

namespace kestrel {

/// The visible items in order, without leading, trailing or consecutive separators.
std::vector<const TMenuItem*> VisibleRows(const std::vector<TMenuItem*>& items);

}  // namespace kestrel
