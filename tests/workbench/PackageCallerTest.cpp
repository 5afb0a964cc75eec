#include "host/Errors.h"
#include "hosts/common/Notifications.h"
#include "support/Testing.h"

namespace kestrel::workbench {

TEST(PackageCaller, ReportsErrorsButNotAborts) {
  std::vector<std::string> lines;
  const TPackageCaller caller([&](const std::string& line) { lines.push_back(line); });
  EXPECT_TRUE(caller.Run("fine", [] {}));
  EXPECT_FALSE(caller.Run("abort", [] { throw EAbort("silent"); }));
  EXPECT_FALSE(caller.Run("error", [] { throw std::runtime_error("disk full"); }));
  EXPECT_FALSE(caller.Run("odd", [] { throw 42; }));
  EXPECT_THAT(lines, ElementsAre("error: disk full", "odd: unknown error"));
}

TEST(Registrations, SkipThoseRemovedDuringTheLoop) {
  TRegistrations<int> numbers;
  const int first = numbers.Add(std::make_shared<int>(1));
  const int second = numbers.Add(std::make_shared<int>(2));
  numbers.Add(std::make_shared<int>(3));
  std::vector<int> seen;
  numbers.ForEach([&](int number) {
    seen.push_back(number);
    numbers.Remove(first);
    numbers.Remove(second);
    if (number == 1) numbers.Add(std::make_shared<int>(4));
  });
  EXPECT_THAT(seen, ElementsAre(1, 3));
  EXPECT_EQ(numbers.Remove(first), nullptr);
  EXPECT_EQ(numbers.Add(nullptr), -1);
}

}  // namespace kestrel::workbench
