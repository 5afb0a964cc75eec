// Where Windows runs the program with a code page of 8 bits: this one has no manifest that asks for UTF-8.
#include <windows.h>

#include <array>

#include "provider/Fixture.h"
#include "system/Text.h"

namespace kestrel::addin {

namespace {

template <UINT page>
class OnPage : public SessionTest {
 protected:
  void SetUp() override {
    if (GetACP() != page) GTEST_SKIP() << "the system's code page is " << GetACP();
  }
};

using CodePage = OnPage<1252>;
using CodePage932 = OnPage<932>;

/// What the user chose for times, as long as it lives.
class TTimeFormat {
 public:
  explicit TTimeFormat(const wchar_t* format) {
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, before_.data(), static_cast<int>(before_.size()));
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, format);
  }
  ~TTimeFormat() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_STIMEFORMAT, before_.data()); }
  TTimeFormat(const TTimeFormat&) = delete;
  TTimeFormat& operator=(const TTimeFormat&) = delete;

 private:
  std::array<wchar_t, 80> before_{};
};

std::string Repeat(std::string_view text, int times) {
  std::string whole;
  while (times-- > 0) whole += text;
  return whole;
}

}  // namespace

TEST_F(CodePage, ConvertsTextsWithoutLoss) {
  EXPECT_EQ(ToCodePageExact("grün €"), "gr\xFCn \x80");
  EXPECT_EQ(FromCodePageLossy("gr\xFCn \x80"), "grün €");
  // Ā would become A, which is another file.
  for (const char* text : {"名前", "Ā", "😀", "no UTF-8 \xFF"}) EXPECT_FALSE(ToCodePageExact(text)) << text;
}

TEST_F(CodePage, IsWhatTheProviderReadsAndWrites) {
  provider->GetProjPath.ProjName = "$/gr\xFCn";
  provider->Texts["SccCheckin"] = {{scc::SCC_MSG_INFO, "gr\xFCn"}};
  session().OpenProject(messages);
  session().GetProjectPath(messages, true, true);
  EXPECT_EQ(session().get_ProjName(), "$/grün");

  EXPECT_TRUE(session().CheckInFile({"C:\\grün.pas"}, "für Ann", false, messages));
  EXPECT_THAT(provider->Last("SccCheckin").Files, ElementsAre("C:\\gr\xFCn.pas"));
  EXPECT_EQ(provider->Last("SccCheckin").Comment, "f\xFCr Ann");
  EXPECT_THAT(sink.Of(TSeverity::Info), Contains("grün"));
}

TEST_F(CodePage, RefusesANameThatItCannotHold) {
  TStatusArray statuses;
  EXPECT_FALSE(session().Query({"C:\\a.pas", "C:\\名前.pas"}, statuses, messages));
  EXPECT_THAT(messages[2], HasSubstr("\"C:\\名前.pas\" cannot be passed"));
  EXPECT_FALSE(session().CheckOutFile({"C:\\名前.pas"}, "", messages));
  EXPECT_THAT(messages[2], HasSubstr("\"C:\\名前.pas\" cannot be passed"));
  session().set_ProjName("名前");
  EXPECT_EQ(session().OpenProject(messages), -15) << "it is not open";
  EXPECT_THAT(messages[2], HasSubstr("\"名前\" cannot be passed"));
  EXPECT_TRUE(provider->Calls.empty()) << "the provider was asked nothing";
}

TEST_F(CodePage, ReplacesOnlyInTextsOfOurOwnWhatDoesNotFit) {
  const TTimeFormat format(L"'오전' HH:mm:ss");
  session().OpenProject(messages);
  EXPECT_EQ(messages[2], "");
  EXPECT_THAT(provider->Last("SccOpenProject").Comment, HasSubstr(" ?? "));
  EXPECT_TRUE(session().CheckInFile({"C:\\a"}, "", false, messages)) << messages[2];
  EXPECT_TRUE(session().RemoveFile({"C:\\a"}, messages)) << messages[2];

  EXPECT_FALSE(session().CheckInFile({"C:\\a"}, "오전", false, messages))
      << "what the user typed is not changed";
  EXPECT_THAT(messages[2], HasSubstr("\"오전\" cannot be passed"));
}

TEST_F(CodePage, CountsBytesAsTheProviderDoes) {
  const auto fits = Repeat("ü", 260), tooLong = Repeat("ü", 261);
  for (const auto& name : {fits, tooLong}) {
    session().set_ProjName(name);
    EXPECT_EQ(session().get_ProjName(), fits);
  }
  session().OpenProject(messages, fits);
  EXPECT_EQ(provider->Last("SccOpenProject").LocalPath, std::string(260, '\xFC'));
  session().OpenProject(messages, tooLong);
  EXPECT_THAT(messages[2], HasSubstr("is too long"));
  session().CheckInFile({"C:\\a"}, Repeat("ü", 200), false, messages);
  EXPECT_EQ(provider->Last("SccCheckin").Comment, std::string(128, '\xFC'));
}

// Characters of two bytes, the second of which may be a letter or a backslash.
TEST_F(CodePage932, ShowsWhatItCanOfATextAndRefusesSuchNames) {
  EXPECT_EQ(FromCodePageLossy("\x95\x5C\x8E\xA6"), "表示");
  EXPECT_THAT(FromCodePageLossy("a \xFF b \x95\x5C"), AllOf(StartsWith("a "), EndsWith(" b 表")));
  provider->GetProjPath.ProjName = "$/a\x95";
  EXPECT_EQ(session().GetProjectPath(messages, true, true), -15);
  EXPECT_THAT(messages[2], HasSubstr("gave a name that cannot be passed back to it"));
  EXPECT_EQ(session().get_ProjName(), "");
  TStringList taken;
  for (const char* name : {"C:\\\x95\x5C.pas", "C:\\a\x95"}) EXPECT_TRUE(AppendPopulatedName(name, taken));
  EXPECT_THAT(taken, ElementsAre("C:\\表.pas"));
  EXPECT_THAT(sink.Of(TSeverity::Warning), ElementsAre(HasSubstr("(SccPopulateList)")));
}

TEST_F(CodePage932, CutsBetweenCharacters) {
  session().set_ProjName("a" + Repeat("表", 200));
  EXPECT_EQ(session().get_ProjName(), "a" + Repeat("表", 129));
  provider->OpenProject.User = Repeat("\x95\x5C", 20);
  session().OpenProject(messages);
  EXPECT_EQ(session().get_UserName(), Repeat("表", 16));
  session().CheckInFile({"C:\\a"}, "a" + Repeat("表", 70), false, messages);
  EXPECT_EQ(provider->Last("SccCheckin").Comment, "a" + Repeat("\x95\x5C", 63));
}

}  // namespace kestrel::addin
