#include <map>

#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel {

TEST(System, CompletesANameFromTheCurrentDirectory) {
  const auto here = FromFilePath(fs::current_path());
  EXPECT_EQ(FullPath("Größe.pas"), IncludeTrailingPathDelimiter(here) + "Größe.pas");
  EXPECT_EQ(FullPath("a/../."), here);
  EXPECT_EQ(FullPath(here), here);
  EXPECT_EQ(FullPath(""), "");
}

TEST(System, TellsFilesFoldersAndNothingApart) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("Größe.pas", "");
  const struct {
    std::string path;
    bool isFile, isFolder;
  } rows[] = {
      {file, true, false}, {folder.Path(), false, true}, {folder / "b", false, false}, {"", false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(FileExists(row.path), row.isFile) << row.path;
    EXPECT_EQ(DirectoryExists(row.path), row.isFolder) << row.path;
  }
}

TEST(System, VisitsWhatADirectoryHolds) {
  const TTemporaryFolder folder;
  folder.Write("unit 1.pas", "");
  folder.Write("Größe/名前.pas", "");
  std::map<std::string, bool> seen;
  const auto visit = [&](const TDirectoryEntry& entry) { seen.emplace(entry.Name, entry.IsDirectory); };
  ForEachEntry(folder.Path(), visit);
  ForEachEntry(folder / "Größe", visit);
  ForEachEntry(folder / "missing", visit);
  EXPECT_EQ(seen, (std::map<std::string, bool>{{"unit 1.pas", false}, {"Größe", true}, {"名前.pas", false}}));
}

}  // namespace kestrel
