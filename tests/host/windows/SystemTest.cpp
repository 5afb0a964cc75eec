#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Paths.h"

namespace kestrel {

TEST(System, SetsTheAttributesOfAFile) {
  const TTemporaryFolder folder;
  const auto path = folder.Write("Größe 名前.pas", "unit unit1;");
  for (const std::uint32_t attributes : {faReadOnly, faReadOnly | faArchive, faArchive, 0u}) {
    EXPECT_TRUE(SetFileAttributesOf(path, attributes));
    const auto got = GetFileAttributesOf(path);
    EXPECT_EQ(got & faReadOnly, attributes & faReadOnly);
    EXPECT_EQ(got | faArchive, attributes | faArchive) << "some file systems have the archive bit always";
  }
  EXPECT_FALSE(SetFileAttributesOf(folder / "missing", faArchive));
  EXPECT_EQ(GetFileAttributesOf(folder / "missing"), 0u);
}

TEST(System, CompletesANameFromADrive) {
  const auto here = GetCurrentDirectoryText(1000);
  const auto drive = here.substr(0, 2);
  const std::string longName(300, 'x');
  const std::pair<std::string, std::string> rows[] = {
      {drive + "a.pas", IncludeTrailingPathDelimiter(here) + "a.pas"},
      {"/p/a.pas", drive + "\\p\\a.pas"},
      {"//server/share/p/../App.qvxproj", "\\\\server\\share\\App.qvxproj"},
      {"\\\\server\\share\\proj\\App.qvxproj", "\\\\server\\share\\proj\\App.qvxproj"},
      {"\\\\?\\UNC\\server\\share\\App.qvxproj", "\\\\server\\share\\App.qvxproj"},
      {"\\\\?\\C:\\p\\a.pas", "C:\\p\\a.pas"},
      {"C:\\" + longName + "/./a.pas", "C:\\" + longName + "\\a.pas"},
  };
  for (const auto& [path, full] : rows) EXPECT_EQ(FullPath(path), full);
}

TEST(System, ReachesFilesBehindLongPaths) {
  const TTemporaryFolder folder;
  std::string path = folder.Path();
  for (int i = 0; i < 6; ++i) path += "\\" + std::string(50, 'x');
  fs::create_directories(L"\\\\?\\" + ToFilePath(path).wstring());
  WriteFileAtomically(path + "/unit1.pas", "text");  // delimiters of both kinds
  EXPECT_EQ(ReadWholeFile(path + "\\unit1.pas"), "text");
  std::vector<std::string> names;
  ForEachEntry(path, [&](const TDirectoryEntry& entry) { names.emplace_back(entry.Name); });
  EXPECT_THAT(names, ElementsAre("unit1.pas"));
  // The standard library cannot remove them all at once.
  auto left = fs::path(L"\\\\?\\" + ToFilePath(path + "\\unit1.pas").wstring());
  for (int i = 0; i < 7; ++i, left = left.parent_path()) EXPECT_TRUE(fs::remove(left));
}

}  // namespace kestrel
