#include <gtest/gtest.h>

#include "host/Text.h"

TEST(Text, NeedsNoConversionWhereTheProgramRunsWithUtf8) {
  EXPECT_EQ(ToSystemText("C:\\名前 😀.pas"), "C:\\名前 😀.pas") << "the manifest asks for it";
  EXPECT_EQ(FromSystemText("C:\\名前 😀.pas"), "C:\\名前 😀.pas");
}

TEST(Text, ShowsMomentsAsTheUserHasThem) {
  const auto text = DateTimeToStr(1'000'000'000);
  EXPECT_NE(text.find("2001"), text.npos) << text;
  EXPECT_NE(text.find(":46:40"), text.npos) << text;
}
