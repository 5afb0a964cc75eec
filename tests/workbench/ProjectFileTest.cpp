#include "support/NativePath.h"
#include "support/Testing.h"
#include "workbench/model/ProjectFile.h"

namespace kestrel::workbench {

TEST(ProjectFile, ReadsNamesAsEarlierVersionsWroteThem) {
  const auto file = TProjectFile::Parse(
      "[Project]\n[Modules]\nModule=%20leading.pas\nModule=100%25.pas\nModule=new%0Aline.pas\n"
      "Module=per%2520cent.pas\n");
  EXPECT_THAT(file.Items(), ElementsAre(" leading.pas", "100%.pas", "new\nline.pas", "per%20cent.pas"));
}

TEST(ProjectFile, ChangesOnlyItsLists) {
  const std::string text =
      "; made by hand\n[Project]\nVersion = 1\nOutput = bin/demo\n\n[Modules]\nModule = A.pas\n# b\nModule = "
      "B.pas\n\n[Compiler]\nno key\n";
  auto file = TProjectFile::Parse(text);
  EXPECT_EQ(file.Text(), text);
  file.Items().insert(file.Items().begin() + 1, " new");
  EXPECT_EQ(file.Text(), std::string(text).insert(text.find("# b"), "Module=\" new\"\n"));
}

TEST(ProjectFile, RefusesWhatIsNoProject) {
  using namespace std::string_literals;
  for (const auto& text :
       {""s, "unit Main;\n"s, "[Group]\n[Projects]\n"s, "[Project]\nVersion=2\n"s, "[Project]\n\0"s})
    EXPECT_THROW(TProjectFile::Parse(text), std::runtime_error) << text;
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
    const char *Base, *Path, *Stored;
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

}  // namespace kestrel::workbench
