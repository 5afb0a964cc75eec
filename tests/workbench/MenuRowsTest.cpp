#include <deque>

#include "hosts/common/MenuRows.h"
#include "support/Testing.h"

namespace kestrel::workbench {

namespace {

/// Items from a picture: a letter is an item, '-' a separator, '.' makes the one before it invisible.
std::string Shown(const std::string& picture) {
  std::deque<TMenuItem> items;
  std::vector<TMenuItem*> list;
  for (const char c : picture) {
    if (c == '.') {
      items.back().Visible = false;
      continue;
    }
    items.emplace_back().Caption = c;
    list.push_back(&items.back());
  }
  std::string shown;
  for (const TMenuItem* item : VisibleRows(list)) shown += item->Caption;
  return shown;
}

TEST(MenuRows, LeaveNoSeparatorWithoutItemsOnBothSides) {
  const std::pair<const char*, const char*> rows[] = {
      {"ab-c", "ab-c"}, {"a--b", "a-b"}, {"-a-", "a"}, {"a-b.-c", "a-c"},
      {"a.-b", "b"},    {"a-.b", "ab"},  {"a.b.", ""}, {"a-b.", "a"},
  };
  for (const auto& [menu, shown] : rows) EXPECT_EQ(Shown(menu), shown) << menu;
}

}  // namespace

}  // namespace kestrel::workbench
