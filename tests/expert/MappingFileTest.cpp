// The project mapping file, also when somebody broke it.
#include "expert/ExpertFixture.h"
#include "expert/MappingFile.h"

namespace kestrel::addin {

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

TEST_F(MappingFile, ChangesOneKeyOfTheFileAsItIsNow) {
  folder_.Write("App.cdp", "\xEF\xBB\xBF; by hand\r\n[Zeta]\r\nProjName = \"$/b\", AAAA\r\n");
  TMappingFile mapping(path_);
  EXPECT_THAT(mapping.Sections(), ElementsAre("Zeta"));
  EXPECT_EQ(mapping.Read("zeta", kMapProjName), "\"$/b\", AAAA");
  const auto meanwhile = ReadWholeFile(path_) + "[A]B ]\r\nProjName=\" x \"\r\n; end";
  folder_.Write("App.cdp", meanwhile);
  mapping.Write("Zeta", kMapProjName, "\"$/b\", AAAA");
  EXPECT_EQ(ReadWholeFile(path_), meanwhile) << "it has that value";
  mapping.Write("A]B", kMapUserName, "ann");
  EXPECT_EQ(ReadWholeFile(path_), meanwhile.substr(0, meanwhile.size() - 5) + "UserName=ann\r\n; end");
  EXPECT_EQ(mapping.Read("A]B", kMapProjName), " x ");
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

}  // namespace kestrel::addin
