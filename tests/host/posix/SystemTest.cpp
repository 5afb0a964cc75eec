
#include "support/TemporaryFolder.h"
#include "support/Testing.h"

namespace kestrel {

namespace {

int ModeOf(const std::string& path) { return static_cast<int>(fs::status(path).permissions()); }

}  // namespace

TEST(System, ChangesOnlyTheWriteBitsOfAFile) {
  const TTemporaryFolder folder;
  const auto path = folder.Write("unit 1.pas", "unit unit1;");
  const struct {
    int before;
    std::uint32_t attributes;
    int after;
  } rows[] = {
      {0644, faReadOnly, 0444}, {0664, faReadOnly | faArchive, 0444},
      {0444, faArchive, 0644},  {0555, faArchive, 0755},
      {0664, faArchive, 0664},  {0040, 0, 0240},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::Message() << std::oct << row.before << " " << row.attributes);
    fs::permissions(path, fs::perms(row.before));
    EXPECT_TRUE(SetFileAttributesOf(path, row.attributes));
    EXPECT_EQ(ModeOf(path), row.after);
    EXPECT_EQ(GetFileAttributesOf(path), faArchive | (row.attributes & faReadOnly));
  }
}

TEST(System, FollowsLinks) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("a", "");
  const auto link = folder / "link";
  const auto dangling = folder / "dangling";
  fs::create_symlink(file, link);
  fs::create_symlink(folder / "missing", dangling);
  EXPECT_TRUE(FileExists(link));
  EXPECT_FALSE(FileExists(dangling) || DirectoryExists(dangling));
  EXPECT_EQ(GetFileAttributesOf(dangling), 0u);
  EXPECT_FALSE(SetFileAttributesOf(dangling, faArchive));
}

TEST(System, BeepsThroughTheHostsHandler) {
  std::vector<TBeep> heard;
  MessageBeep(TBeep::Hand);
  SetBeepHandler([&](TBeep kind) { heard.push_back(kind); });
  MessageBeep(TBeep::Question);
  SetBeepHandler({});
  MessageBeep(TBeep::Asterisk);
  EXPECT_THAT(heard, ElementsAre(TBeep::Question));
}

}  // namespace kestrel
