#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

#include "support/TemporaryFolder.h"
#include "support/Testing.h"

namespace kestrel {

namespace {

/// As if the disk were full: this process may write no file longer than that.
class TDiskLimit {
 public:
  explicit TDiskLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  TDiskLimit(const TDiskLimit&) = delete;
  TDiskLimit& operator=(const TDiskLimit&) = delete;
  ~TDiskLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

}  // namespace

TEST(Files, KeepPermissionsAndLinksWhenTheyAreWritten) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("real/a.cdp", "old");
  const auto link = folder / "a.cdp";
  fs::create_symlink("real/a.cdp", link);
  fs::permissions(file, fs::perms(0640));

  WriteFileAtomically(link, "new");

  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(ReadWholeFile(file), "new");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms(0640));

  fs::remove(file);
  EXPECT_THROW(WriteFileAtomically(link, "new"), std::runtime_error) << "it leads nowhere";
  EXPECT_TRUE(fs::is_symlink(link));
}

TEST(Files, StayAsTheyWereWhenTheDiskIsFull) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("a.cdp", "old");
  {
    const TDiskLimit limit(100'000);
    EXPECT_THROW(WriteFileAtomically(file, std::string(1'000'000, 'x')), std::runtime_error);
  }
  EXPECT_EQ(ReadWholeFile(file), "old");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1) << "no temporary file stays";
}

}  // namespace kestrel
