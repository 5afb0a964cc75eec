#include <algorithm>

#include "support/PlainUser.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Paths.h"
#include "wizards/FileSearch.h"

namespace kestrel::addin {

using TList = std::vector<std::string>;

/// p/a.pas  p/.hidden  p/sub/  p/sub/b.pas  p/sub/deep/  p/sub/deep/c.pas  p/empty/  p/.svn/
class FileSearch : public testing::Test {
 protected:
  FileSearch() {
    for (const char* file : {"p/a.pas", "p/.hidden", "p/sub/b.pas", "p/sub/deep/c.pas"})
      folder_.Write(file, "");
    for (const char* directory : {"p/empty", "p/.svn"}) folder_.MakeFolder(directory);
  }

  /// What a search appends to a list that holds something already; paths are shown from the folder on.
  TList Found(void (*search)(TList&, const std::string&), const std::string& directory) const {
    TList target{"before"};
    search(target, directory.starts_with('/') ? directory : folder_ / directory);
    EXPECT_EQ(target.front(), "before");
    target.erase(target.begin());
    for (auto& path : target) {
      if (path.starts_with(folder_.Path())) path.erase(0, folder_.Path().size() + 1);
      std::ranges::replace(path, PathDelim, '/');
    }
    return target;
  }

  TTemporaryFolder folder_;
};

TEST_F(FileSearch, FindsTheSameWithAndWithoutATrailingDelimiter) {
  for (const char* p : {"p", "p/"}) {
    EXPECT_THAT(Found(SearchRecursiveFiles, p),
                UnorderedElementsAre("p/a.pas", "p/.hidden", "p/sub", "p/empty", "p/.svn", "p/sub/b.pas",
                                     "p/sub/deep", "p/sub/deep/c.pas"));
    EXPECT_THAT(Found(SearchRecursiveDirectories, p),
                UnorderedElementsAre("p/", "p/sub/", "p/empty/", "p/.svn/", "p/sub/deep/"));
  }
}

TEST_F(FileSearch, FindsNothingInEmptyOrMissingDirectories) {
  EXPECT_THAT(Found(SearchRecursiveDirectories, "p/empty"), ElementsAre("p/empty/"));
  EXPECT_THAT(Found(SearchRecursiveFiles, "p/empty"), ElementsAre());
  for (const char* none : {"none", "p/a.pas"}) EXPECT_THAT(Found(SearchRecursiveFiles, none), ElementsAre());
}

TEST_F(FileSearch, SkipsADirectoryThatCannotBeRead) {
  fs::permissions(folder_ / "p/sub", fs::perms::none);
  {
    const TPlainUser user;
    std::error_code refused;
    if (fs::directory_iterator(folder_ / "p/sub", refused) != fs::directory_iterator())
      GTEST_SKIP() << "this user reads everything";
    EXPECT_THAT(Found(SearchRecursiveFiles, "p"),
                UnorderedElementsAre("p/a.pas", "p/.hidden", "p/sub", "p/empty", "p/.svn"));
    EXPECT_THAT(Found(SearchRecursiveDirectories, "p"),
                UnorderedElementsAre("p/", "p/sub/", "p/empty/", "p/.svn/"));
  }
  fs::permissions(folder_ / "p/sub", fs::perms::owner_all);
}

TEST_F(FileSearch, ListsLinksAndDoesNotEnterThem) {
  folder_.Write("elsewhere/d.pas", "");
  std::error_code refused;
  fs::create_directory_symlink("..", folder_ / "p/empty/up", refused);
  if (refused) GTEST_SKIP() << "this user makes no links";
  fs::create_directory_symlink("../elsewhere", folder_ / "p/away");
  fs::create_symlink("../elsewhere/d.pas", folder_ / "p/d.pas");
  fs::create_symlink("nowhere", folder_ / "p/broken");
  EXPECT_THAT(Found(SearchRecursiveDirectories, "p"),
              UnorderedElementsAre("p/", "p/sub/", "p/empty/", "p/.svn/", "p/sub/deep/"));
  const auto files = Found(SearchRecursiveFiles, "p");
  for (const char* link : {"p/empty/up", "p/away", "p/d.pas", "p/broken"})
    EXPECT_EQ(std::ranges::count(files, link), 1) << link;
  EXPECT_EQ(files.size(), 12U);
  EXPECT_THAT(Found(SearchRecursiveFiles, "p/away"), ElementsAre("p/away/d.pas"))
      << "the start may be a link";
}

}  // namespace kestrel::addin
