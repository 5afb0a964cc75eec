// The project mapping file, also when somebody broke it.
#include <stdexcept>

#include "expert/ExpertFixture.h"
#include "expert/MappingFile.h"
#include "support/NativePath.h"

namespace {

class MappingFile : public testing::Test {
 protected:
  TTemporaryFolder folder_;
  std::string path_ = folder_ / "App.cdp";
};

TEST_F(MappingFile, NameReplacesTheExtension) {
  EXPECT_EQ(MappingFileName(Native("/work/App.qvxproj")), Native("/work/App.cdp"));
  EXPECT_EQ(MappingFileName("App.qvxproj"), Native("/App.cdp"))
      << "without a directory it begins with the delimiter";
}

TEST_F(MappingFile, RewritingKeepsWhatItDoesNotUnderstand) {
  const std::string text =
      "; bound by hand\n[Zeta]\nProjName=\"$/b\", AAAA\nOther=1\n\n\n[Alpha beta]\nAuxProjPath=C:\\x "
      "y\\\xC3\xA4\n";
  folder_.Write("App.cdp", text);
  TMappingFile(path_).Write("Zeta", kMapUserName, "ann");
  const TMappingFile mapping(path_);
  EXPECT_THAT(mapping.Sections(), ElementsAre("Zeta", "Alpha beta"));
  EXPECT_EQ(mapping.Read("Zeta", kMapProjName), "\"$/b\", AAAA");
  EXPECT_EQ(mapping.Read("zeta", "username"), "ann");
  EXPECT_EQ(mapping.Read("Alpha beta", kMapAuxProjPath), "C:\\x y\\\xC3\xA4");
  const auto rewritten = ReadWholeFile(path_);
  EXPECT_THAT(rewritten, HasSubstr("; bound by hand"));
  EXPECT_THAT(rewritten, HasSubstr("Other=1"));
}

TEST_F(MappingFile, ValuesComeBackAsTheyWere) {
  for (const std::string value :
       {" both ends ", "\"quoted\"", "a=b;c", "#1", "[x]", "", "\xC3\x9C \xE2\x82\xAC"}) {
    TMappingFile(path_).Write("P", "Key", value);
    EXPECT_EQ(TMappingFile(path_).Read("P", "Key"), value);
  }
}

TEST_F(MappingFile, DamageIsReportedAndNothingIsLost) {
  folder_.Write("App.cdp", std::string("[P]\nProjName=\0\x01\x02", 16));
  EXPECT_THROW(TMappingFile{path_}, std::runtime_error);

  for (const std::string damaged :
       {"[P]\nProjName=x\n[Othe", "[P]\nProjName=x\nAuxProjPa", "[P]\nlonely\nProjName=x\n"}) {
    folder_.Write("App.cdp", damaged);
    TMappingFile mapping(path_);
    EXPECT_THAT(mapping.Damage(), HasSubstr("App.cdp is damaged in line"));
    EXPECT_EQ(mapping.Read("P", kMapProjName), "x");
    EXPECT_EQ(mapping.Read("P", kMapAuxProjPath), "");
    EXPECT_THROW(mapping.Write("P", kMapUserName, "ann"), std::runtime_error);
    EXPECT_EQ(ReadWholeFile(path_), damaged);
  }
}

TEST_F(MappingFile, WritingTheSameValueLeavesTheFileAlone) {
  const std::string text = "[P]\nUserName = ann\n";
  folder_.Write("App.cdp", text);
  TMappingFile(path_).Write("P", kMapUserName, "ann");
  EXPECT_EQ(ReadWholeFile(path_), text);
}

}  // namespace
