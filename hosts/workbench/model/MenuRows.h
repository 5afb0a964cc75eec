// Which items of a package's menu show.
#pragma once

#include <vector>

#include "host/Menus.h"

namespace kestrel::workbench {

/// The visible items in order, without separators at either end, after each other, or next to nothing but hidden ones.
std::vector<const TMenuItem*> VisibleRows(const std::vector<TMenuItem*>& items);

}  // namespace kestrel::workbench
