#include <gmock/gmock.h>

#include <filesystem>

#include "host/Library.h"
#include "host/Paths.h"
#include "support/TemporaryFolder.h"

namespace fs = std::filesystem;
using testing::HasSubstr;

namespace {

bool Loads(const std::string& path) {
  const auto module = LoadModule(path);
  FreeModule(module);
  return module != nullptr;
}

}  // namespace

TEST(Library, FindsWhatItNeedsOnlyInItsOwnFolder) {
  const TTemporaryFolder folder;
  const auto provider = folder.MakeFolder("名前");
  const auto elsewhere = folder.MakeFolder("elsewhere");
  const auto library = provider + "\\needy_library.dll";
  fs::copy(ToFilePath(NEEDY_LIBRARY), ToFilePath(library));
  const auto needed = ExtractFileName(NEEDED_LIBRARY);
  fs::copy(ToFilePath(NEEDED_LIBRARY), ToFilePath(elsewhere + "\\" + needed));

  const auto before = fs::current_path();
  fs::current_path(ToFilePath(elsewhere));
  EXPECT_FALSE(Loads(library)) << "neither the current folder nor the program's is searched";
  fs::current_path(before);

  fs::copy(ToFilePath(NEEDED_LIBRARY), ToFilePath(provider + "\\" + needed));
  EXPECT_TRUE(Loads(library));
}

TEST(Library, ExplainsThatALibraryIsOfAnotherKind) {
  const TTemporaryFolder folder;
  std::string error;
  EXPECT_FALSE(LoadModule(folder.Write("text.dll", "not a library"), &error));
  EXPECT_THAT(error, HasSubstr("-bit program loads "));
}
