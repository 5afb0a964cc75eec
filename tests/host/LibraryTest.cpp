
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Library.h"
#include "system/Paths.h"

namespace kestrel {

TEST(Library, LoadsFindsAndReleases) {
  const auto module = LoadModule(TINY_PROVIDER);
  ASSERT_TRUE(module);
  EXPECT_TRUE(FindSymbol(module, "SccInitialize"));
  EXPECT_FALSE(FindSymbol(module, "SccNoSuchThing"));
  UnloadModule(module);
  EXPECT_FALSE(FindSymbol(nullptr, "SccInitialize"));
  UnloadModule(nullptr);
}

TEST(Library, RefusesWhatIsNoAbsolutePathOfALibrary) {
  const TTemporaryFolder folder;
  const std::string rows[] = {"", ExtractFileName(CORVANE_LIBRARY), folder / "missing.so", folder.Path(),
                              folder.Write("text.so", "not a library")};
  for (const auto& path : rows) {
    std::string error;
    EXPECT_FALSE(LoadModule(path, &error)) << path;
    EXPECT_THAT(error, Not(IsEmpty())) << path;
    EXPECT_FALSE(LoadModule(path)) << path;
  }
}

TEST(Library, RefusesARelativePathThatLeadsToALibrary) {
  const auto before = fs::current_path();
  fs::current_path(ExtractFileDir(TINY_PROVIDER));
  std::string error;
  const auto module = LoadModule("./" + ExtractFileName(TINY_PROVIDER), &error);
  fs::current_path(before);
  EXPECT_FALSE(module);
  EXPECT_THAT(error, HasSubstr("absolute"));
}

}  // namespace kestrel
