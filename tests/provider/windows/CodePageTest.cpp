// Where Windows runs the program with a code page of 8 bits: this one has no manifest that asks for UTF-8.
#include <windows.h>

#include "host/Text.h"
#include "provider/Fixture.h"

using testing::HasSubstr;

namespace {

class CodePage : public SessionTest {
 protected:
  void SetUp() override {
    if (GetACP() != 1252) GTEST_SKIP() << "the system's code page is " << GetACP();
  }
};

}  // namespace

TEST_F(CodePage, LosesNothingOfAText) {
  EXPECT_EQ(ToSystemText("Größe €"),
            "Gr\xF6\xDF"
            "e \x80");
  EXPECT_EQ(FromSystemText("Gr\xF6\xDF"
                           "e \x80"),
            "Größe €");
  // Ā would become A, which is another file.
  for (const char* text : {"名前", "Ā", "😀", "no UTF-8 \xFF"}) EXPECT_FALSE(ToSystemText(text)) << text;
}

TEST_F(CodePage, IsWhatTheProviderReadsAndWrites) {
  provider->GetProjPath.ProjName =
      "$/Gr\xF6\xDF"
      "e";
  provider->Texts["SccCheckin"] = {{scc::SCC_MSG_INFO,
                                    "f\xFCr Gr\xF6\xDF"
                                    "e"}};
  session().OpenProject(messages);
  session().GetProjectPath(messages, true, true);
  EXPECT_EQ(session().get_ProjName(), "$/Größe");

  EXPECT_TRUE(session().CheckInFile({"C:\\Größe.pas"}, "für Ann", false, messages));
  EXPECT_EQ(provider->Last("SccCheckin").Files.at(0),
            "C:\\Gr\xF6\xDF"
            "e.pas");
  EXPECT_EQ(provider->Last("SccCheckin").Comment, "f\xFCr Ann");
  EXPECT_THAT(sink.Of(Kind::Info), testing::Contains("für Größe"));
}

TEST_F(CodePage, RefusesANameThatItCannotHold) {
  TStatusArray statuses;
  EXPECT_FALSE(session().Query({"C:\\a.pas", "C:\\名前.pas"}, statuses, messages));
  EXPECT_THAT(messages[2], HasSubstr("\"C:\\名前.pas\" cannot be passed"));
  EXPECT_FALSE(session().CheckOutFile({"C:\\名前.pas"}, "", messages));
  EXPECT_THAT(messages[2], HasSubstr("\"C:\\名前.pas\" cannot be passed"));
  session().set_ProjName("名前");
  session().OpenProject(messages);
  EXPECT_THAT(messages[2], HasSubstr("\"名前\" cannot be passed"));
  EXPECT_TRUE(provider->Calls.empty()) << "the provider was asked nothing";
}
