#include <windows.h>

#include <array>
#include <map>
#include <utility>

#include "support/Testing.h"
#include "system/Text.h"

namespace kestrel {

TEST(Text, NeedsNoConversionWhereTheProgramRunsWithUtf8) {
  EXPECT_EQ(ToCodePageExact("C:\\名前 😀.pas"), "C:\\名前 😀.pas") << "the manifest asks for it";
  EXPECT_EQ(FromCodePageLossy("C:\\名前 😀.pas"), "C:\\名前 😀.pas");
}

TEST(Text, ShowsMomentsAsTheUserHasThem) {
  const auto text = DateTimeToStr(1'000'000'000);
  EXPECT_NE(text.find("2001"), text.npos) << text;
  EXPECT_NE(text.find(":46:40"), text.npos) << text;
}

TEST(Text, ReadsWhatIsNoUtf8AsThePageOfTheSystemsLocale) {
  // One line for each page that the tests run in.
  const std::map<std::wstring, std::pair<const char*, const char*>> rows = {
      {L"1252", {"f\xFCr 5 \x80: \x84Größe\x93", "für 5 €: „Größe“"}},
      {L"932", {"\x95\x5C\x8E\xA6 a.pas", "表示 a.pas"}},
  };
  std::array<wchar_t, 8> page{};
  GetLocaleInfoW(LOCALE_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE, page.data(),
                 static_cast<int>(page.size()));
  const auto row = rows.find(page.data());
  if (row == rows.end()) GTEST_SKIP() << "no line for the page of the system's locale";
  EXPECT_EQ(FromCodePageLossy(row->second.first), row->second.second);
  EXPECT_EQ(FromCodePageLossy("名前"), "名前");
}

}  // namespace kestrel
