#include <ctime>

#include "support/Environment.h"
#include "support/Testing.h"
#include "system/Text.h"

namespace kestrel {

TEST(Text, ShowsMomentsInLocalTime) {
  const TEnvironmentVariable zone("TZ", "KST-3");
  tzset();
  EXPECT_EQ(DateTimeToStr(0), "01/01/70 03:00:00");
  EXPECT_EQ(DateTimeToStr(1'000'000'000), "09/09/01 04:46:40");
}

TEST(Text, ReadsWhatIsNoUtf8AsPage1252) {
  EXPECT_EQ(FromCodePageLossy("f\xFCr 5 \x80: \x84Größe\x93 \x81"), "für 5 €: „Größe“ \u0081");
}

}  // namespace kestrel
