#include <gmock/gmock.h>

#include "host/System.h"
#include "support/TemporaryFolder.h"

using testing::ElementsAre;

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

TEST(System, ReachesFilesBehindLongPaths) {
  const TTemporaryFolder folder;
  std::string path = folder.Path();
  for (int i = 0; i < 6; ++i) path += "\\" + std::string(50, 'x');
  std::filesystem::create_directories(L"\\\\?\\" + ToFilePath(path).wstring());
  WriteFileAtomically(path + "/unit1.pas", "text");  // delimiters of both kinds
  EXPECT_EQ(ReadWholeFile(path + "\\unit1.pas"), "text");
  std::vector<std::string> names;
  ForEachEntry(path, [&](const TDirectoryEntry& entry) { names.emplace_back(entry.Name); });
  EXPECT_THAT(names, ElementsAre("unit1.pas"));
  // The standard library cannot remove them all at once.
  auto left = std::filesystem::path(L"\\\\?\\" + ToFilePath(path + "\\unit1.pas").wstring());
  for (int i = 0; i < 7; ++i, left = left.parent_path()) EXPECT_TRUE(std::filesystem::remove(left));
}
