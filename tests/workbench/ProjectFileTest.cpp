#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/NativePath.h"
#include "workbench/model/ProjectFile.h"

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;

TEST(ProjectFile, KeepsOddNamesInOrder) {
  const std::vector<std::string> names{"zeta.pas",
                                       "Alpha.pas",
                                       "../shared/\xC3\x9C"
                                       "ber uns.pas",
                                       " leading.pas",
                                       "trailing ",
                                       "#hash.pas",
                                       ";semicolon.pas",
                                       "100%.pas",
                                       "a=b.pas",
                                       "[section].pas",
                                       "new\nline.pas",
                                       "\"quoted\".pas",
                                       "per%20cent.pas",
                                       "<<<HERE",
                                       "tab\t.pas"};
  TProjectFile file;
  file.Items() = names;
  EXPECT_THAT(TProjectFile::Parse(file.Text()).Items(), ElementsAreArray(names));
}

TEST(ProjectFile, KeepsWhatItDoesNotKnow) {
  auto file = TProjectFile::Parse(
      "; made by hand\n[Project]\nVersion = 1\nOutput = bin/demo\n\n[Modules]\nModule = A.pas\nModule = "
      "B.pas\n\n"
      "[Compiler]\n# fast\nRangeChecks = off\n");
  file.Items().push_back("C.pas");
  const std::string text = file.Text();
  for (const char* kept : {"; made by hand", "Output=bin/demo", "[Compiler]", "# fast", "RangeChecks=off"})
    EXPECT_THAT(text, HasSubstr(kept));
  EXPECT_THAT(TProjectFile::Parse(text).Items(), ElementsAre("A.pas", "B.pas", "C.pas"));
}

TEST(ProjectFile, RefusesWhatIsNoProject) {
  for (const char* text : {"", "unit Main;\n", "[Group]\n[Projects]\n", "[Project]\nVersion=2\n"}) {
    SCOPED_TRACE(text);
    EXPECT_THROW(TProjectFile::Parse(text), std::runtime_error);
  }
}

TEST(GroupFile, RemembersProjectsAndTheActiveOne) {
  TGroupFile file;
  file.Items() = {"a/A.qvxproj", "b/B.qvxproj"};
  file.SetActive("b/B.qvxproj");
  auto again = TGroupFile::Parse(file.Text());
  EXPECT_EQ(again.Active(), "b/B.qvxproj");
  again.SetActive("a/A.qvxproj");
  again = TGroupFile::Parse(again.Text());
  EXPECT_EQ(again.Active(), "a/A.qvxproj");
  EXPECT_THAT(again.Items(), ElementsAre("a/A.qvxproj", "b/B.qvxproj"));
}

TEST(StoredPath, IsRelativeWithSlashesAndComesBack) {
  const struct {
    const char* Base;
    const char* Path;
    const char* Stored;
  } rows[] = {
      {"/p", "/p/Main.pas", "Main.pas"},
      {"/p", "/p/sub/Main.pas", "sub/Main.pas"},
      {"/p/app", "/p/lib/Main.pas", "../lib/Main.pas"},
      {"p", "/p/Main.pas", "/p/Main.pas"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ToStoredPath(row.Base, row.Path), row.Stored);
    EXPECT_EQ(FromStoredPath(row.Base, row.Stored), Native(row.Path));
  }
  EXPECT_EQ(FromStoredPath("/p", "/q/Main.pas"), Native("/q/Main.pas"));
}

TEST(ProjectFile, HoldsTheLargestProject) {
  TProjectFile file;
  for (int i = 0; i < 65536; ++i) file.Items().push_back("units/Unit" + std::to_string(i) + ".pas");
  auto again = TProjectFile::Parse(file.Text());
  EXPECT_EQ(again.Items(), file.Items());
  again.Items().push_back("One.pas");
  EXPECT_EQ(TProjectFile::Parse(again.Text()).Items().size(), 65537u);
}

}  // namespace
