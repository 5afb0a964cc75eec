#include "support/Environment.h"
#include "support/OtherBitness.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Library.h"
#include "system/Paths.h"

namespace kestrel {

namespace {

bool Loads(const std::string& path, TDependencySearch search = TDependencySearch::OwnFolder) {
  const auto module = LoadModule(path, nullptr, search);
  UnloadModule(module);
  return module != nullptr;
}

}  // namespace

TEST(Library, FindsDependenciesInItsFolderAndInPathOnRequest) {
  const TTemporaryFolder folder;
  const auto provider = folder.MakeFolder("名前");
  const auto elsewhere = folder.MakeFolder("elsewhere");
  const auto library = provider + "\\needy_library.dll";
  fs::copy(ToFilePath(NEEDY_LIBRARY), ToFilePath(library));
  const auto needed = ExtractFileName(NEEDED_LIBRARY);
  fs::copy(ToFilePath(NEEDED_LIBRARY), ToFilePath(elsewhere + "\\" + needed));

  const auto before = fs::current_path();
  fs::current_path(ToFilePath(elsewhere));
  for (const auto search : {TDependencySearch::OwnFolder, TDependencySearch::OwnFolderPath})
    EXPECT_FALSE(Loads(library, search)) << "neither the current folder nor the program's is searched";
  fs::current_path(before);
  {
    const TEnvironmentVariable path("PATH", elsewhere.c_str());
    EXPECT_FALSE(Loads(library));
    EXPECT_TRUE(Loads(library, TDependencySearch::OwnFolderPath));
  }

  fs::copy(ToFilePath(NEEDED_LIBRARY), ToFilePath(provider + "\\" + needed));
  EXPECT_TRUE(Loads(library));
}

TEST(Library, ReportsWhyItCannotBeLoaded) {
  const TTemporaryFolder folder;
  const auto alone = folder.MakeFolder("alone") + "\\needy_library.dll";
  fs::copy(ToFilePath(NEEDY_LIBRARY), ToFilePath(alone));
  const std::string own = sizeof(void*) == 4 ? "32-bit" : "64-bit";
  const std::string other = sizeof(void*) == 4 ? "64-bit" : "32-bit";
  const auto damaged = "it, or a library that it needs, is damaged or no library for a " + own + " program";
  const std::pair<std::string, std::string> rows[] = {
      {alone,
       "a library that it needs is neither in its folder nor in the system's; PATH is searched only for "
       "providers "
       "that were registered with --search-path"},
      {folder.Write("text.dll", "not a library"), damaged},
      {folder.Write("short.dll", "MZ"), damaged},
      {folder.Write("other.dll", ForTheOtherBitness(ReadWholeFile(TINY_PROVIDER))),
       "it is a " + other + " library; this is a " + own + " program"},
  };
  for (const auto& [path, reason] : rows) {
    std::string error;
    EXPECT_FALSE(LoadModule(path, &error)) << path;
    EXPECT_EQ(error, reason) << path;
  }
  std::string error;
  EXPECT_FALSE(LoadModule(folder / "missing.dll", &error));
  EXPECT_THAT(error, Not(HasSubstr("it needs")));
}

TEST(Library, IsSearchedForTheUnderscoreOf32BitTools) {
  const auto module = LoadModule(UNDERSCORE_LIBRARY);
  ASSERT_TRUE(module);
  const bool is32Bit = sizeof(void*) == 4;
  EXPECT_EQ(FindSymbol(module, "SccOpenProject") != nullptr, is32Bit);
  ASSERT_TRUE(FindSymbol(module, is32Bit ? "_SccGet@4" : "_SccGet"));
  EXPECT_FALSE(FindSymbol(module, "SccGet")) << "its calling convention is another one";
  UnloadModule(module);
}

}  // namespace kestrel
