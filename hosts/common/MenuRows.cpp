#include "hosts/common/MenuRows.h"

namespace kestrel {

std::vector<const TMenuItem*> VisibleRows(const std::vector<TMenuItem*>& items) {
  std::vector<const TMenuItem*> rows;
  const TMenuItem* separator = nullptr;  // added when a visible item follows
  for (const TMenuItem* item : items) {
    if (!item->IsVisible()) continue;
    if (item->IsSeparator()) {
      separator = rows.empty() ? nullptr : item;
      continue;
    }
    if (separator) rows.push_back(separator);
    separator = nullptr;
    rows.push_back(item);
  }
  return rows;
}

}  // namespace kestrel
