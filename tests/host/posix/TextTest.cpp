#include <gtest/gtest.h>

#include <ctime>

#include "host/Text.h"
#include "support/Environment.h"

TEST(Text, ShowsMomentsInLocalTime) {
  const TEnvironmentVariable zone("TZ", "KST-3");
  tzset();
  EXPECT_EQ(DateTimeToStr(0), "01/01/70 03:00:00");
  EXPECT_EQ(DateTimeToStr(1'000'000'000), "09/09/01 04:46:40");
}
