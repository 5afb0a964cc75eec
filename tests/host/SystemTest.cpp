#include <map>

#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Paths.h"

namespace kestrel {

TEST(System, CompletesANameFromTheCurrentDirectory) {
  const auto here = FromFilePath(fs::current_path());
  EXPECT_EQ(FullPath("Größe.pas"), IncludeTrailingPathDelimiter(here) + "Größe.pas");
  EXPECT_EQ(FullPath("a/../."), here);
  EXPECT_EQ(FullPath(here), here);
  EXPECT_EQ(FullPath(""), "");
}

TEST(System, DistinguishesFilesAndFolders) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("Größe.pas", "");
  for (const auto& path : {file, folder.Path(), folder / "b", std::string()}) {
    EXPECT_EQ(FileExists(path), path == file) << path;
    EXPECT_EQ(DirectoryExists(path), path == folder.Path()) << path;
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
