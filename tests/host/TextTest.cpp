#include "support/Testing.h"
#include "system/Text.h"

namespace kestrel {

TEST(Text, FormatNeverFails) {
  EXPECT_EQ(Format("Get of \"%s\" %s (%d)", {"/a.pas", "SUCCEEDED", -14}),
            "Get of \"/a.pas\" SUCCEEDED (-14)");
  EXPECT_EQ(Format("%s", {65536}), "65536") << "an argument of the other kind is shown all the same";
  EXPECT_EQ(Format("100%% of %s", {"%s"}), "100% of %s") << "an argument is no format";
  EXPECT_EQ(Format("%s and %s", {"one"}), "one and %s");
  EXPECT_EQ(Format("%x %", {"unused"}), "%x %");
  EXPECT_EQ(Format("%%s", {"x"}), "%s");
  EXPECT_EQ(Format("", {}), "");
}

TEST(Text, TrimTakesBlanksOfEveryKindFromBothEnds) {
  EXPECT_EQ(Trim(" \t\r\n a b \n"), "a b");
  EXPECT_EQ(Trim(std::string_view("\0x\0", 3)), "x");
  EXPECT_EQ(Trim("\xC3\xA9"), "\xC3\xA9") << "bytes above the control characters are text";
  EXPECT_EQ(Trim(" \t "), "");
}

TEST(Text, ComparesIgnoringCase) {
  const struct {
    const char *a, *b;
    bool same;
  } rows[] = {
      {"", "", true},
      {"SccServerPath", "SCCServerPath", true},
      {"Subversion", "Subversion ", false},
      {"GRÖSSE.PAS", "größe.pas", false},  // one letter is not two
      {"Größe.pas", "GRÖßE.PAS", true},
      {"ΑΒΓ", "αβγ", true},
      {"ЖУК", "жук", true},
      {"a", "ä", false},
      {"\xFF\xC3", "\xFF\xC3", true},  // no UTF-8: compared as they stand
      {"\xFFX", "\xFFx", true},
      {"\xC3", "\xC4", false},
  };
  for (const auto& row : rows) EXPECT_EQ(SameText(row.a, row.b), row.same) << row.a << " " << row.b;
}

TEST(Text, FoldsTheSameInEveryLocale) {
  // The tests run in the "C" locale, where towlower alone knows ASCII only.
  EXPECT_EQ(FoldCase("ÄÖÜ É Ж"), "äöü é ж");
  EXPECT_EQ(FoldCase(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(Text, CutsAtCharacters) {
  const std::string text = "aé€😀";  // 1, 2, 3 and 4 bytes
  const std::size_t kept[] = {0, 1, 1, 3, 3, 3, 6, 6, 6, 6, 10, 10};
  for (std::size_t bytes = 0; bytes < std::size(kept); ++bytes)
    EXPECT_EQ(TruncateUtf8(text, bytes), text.substr(0, kept[bytes])) << bytes;
  EXPECT_EQ(TruncateUtf8("a" + std::string(9, '\x80'), 5).size(), 5u) << "no characters, no borders";
}

TEST(Text, RepairsWhatIsNoUtf8AndNothingElse) {
  const auto mark = [](std::string_view bytes) { return "<" + std::to_string(bytes.size()) + ">"; };
  const struct {
    const char *text, *repaired;
  } rows[] = {
      {"", ""},
      {"aé€😀\u0080\uD7FF\uE000\U0010FFFF", "aé€😀\u0080\uD7FF\uE000\U0010FFFF"},
      {"ge\xE4ndert: Größe", "ge<1>ndert: Größe"},
      {"\xFF\xFE", "<2>"},
      {"a\xC3", "a<1>"},  // ends too early
      {"\xE2\x82x", "<2>x"},
      {"\xF0\x9F\x98", "<3>"},
      {"\x80é", "<1>é"},            // begins too late
      {"\xC0\xAF\xC1\xBF", "<4>"},  // a longer spelling
      {"\xE0\x9F\xBF", "<3>"},
      {"\xF0\x8F\xBF\xBF", "<4>"},
      {"\xED\xA0\x80", "<3>"},      // half of a pair
      {"\xF4\x90\x80\x80", "<4>"},  // behind the last character
      {"\xF5\x80\x80\x80", "<4>"},
  };
  for (const auto& row : rows) EXPECT_EQ(ReplaceInvalidUtf8(row.text, mark), row.repaired) << row.text;
}

TEST(Text, KeepsEveryByteOfAName) {
  for (const char* name : {"/p/Größe", "/p/gr\xFCn", "\x81\xFF"}) {
    EXPECT_EQ(FromCodePageExact(name), name);
    EXPECT_EQ(ToCodePageExact(name), name);
  }
  EXPECT_EQ(TruncateInCodePage("aé€", 3), "aé");
  EXPECT_EQ(TruncateInCodePage("aé€", 2), "a");
}

}  // namespace kestrel
