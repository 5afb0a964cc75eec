// Stored paths where there are drives and shares, and where case does not count.
#include "support/Testing.h"
#include "workbench/model/Modules.h"

namespace kestrel::workbench {

TEST(StoredPath, StaysOnItsDriveOrShare) {
  const struct {
    const char *Base, *Path, *Stored;
  } rows[] = {
      {"\\\\server\\share\\p", "\\\\server\\share\\p\\sub\\Main.pas", "sub/Main.pas"},
      {"\\\\server\\share", "\\\\server\\share\\Main.pas", "Main.pas"},
      {"\\\\server\\share\\p", "\\\\server\\other\\Main.pas", "//server/other/Main.pas"},
      {"\\\\server\\share\\p", "C:\\Main.pas", "C:/Main.pas"},
      {"C:\\p", "\\\\server\\share\\Main.pas", "//server/share/Main.pas"},
      {"C:\\p", "D:\\p\\Main.pas", "D:/p/Main.pas"},
      {"\\\\?\\C:\\p", "C:\\p\\Main.pas", "Main.pas"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ToStoredPath(row.Base, row.Path), row.Stored);
    EXPECT_EQ(FromStoredPath(row.Base, row.Stored), row.Path);
  }
}

TEST(StoredPath, IsTheSameHoweverAFileIsNamed) {
  const TPackageCaller caller([](const std::string&) {});
  TProject project("C:\\P\\App.qvxproj", caller);
  auto& items = project.Definition().Edit().Items();
  items = {".\\sub\\B.pas", "c:/p/C.pas"};  // as a person may have written them
  EXPECT_EQ(project.AddModuleFiles({"c:\\p\\u.pas", "C:\\P\\U.PAS", "C:/P/sub/b.pas", "C:\\P\\C.pas"}), 1u);
  EXPECT_THAT(items, ElementsAre(".\\sub\\B.pas", "c:/p/C.pas", "u.pas"));
  EXPECT_EQ(project.IndexOfModuleFile("c:/P/U.pas"), 2);
  EXPECT_EQ(project.IndexOfModuleFile("C:\\P\\sub\\B.pas"), 0);
}

}  // namespace kestrel::workbench
