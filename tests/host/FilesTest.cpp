#include <unistd.h>

#include <chrono>
#include <functional>
#include <stdexcept>
#include <thread>

#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/Paths.h"

namespace kestrel {

namespace {

std::vector<std::string> NamesIn(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(ToFilePath(folder)))
    names.push_back(FromFilePath(entry.path().filename()));
  return names;
}

}  // namespace

TEST(Files, AreReadAsTheyWereWritten) {
  const TTemporaryFolder folder;
  const std::string longName = folder / (std::string(251, 'x') + ".pas");
  const std::string rows[] = {"", "one line\r\nno end", std::string("\0\xFF\n", 3),
                              std::string(1'000'000, 'x')};
  for (const auto& contents : rows) {
    WriteFileAtomically(longName, contents);
    EXPECT_EQ(ReadWholeFile(longName), contents);
  }
  EXPECT_EQ(NamesIn(folder.Path()).size(), 1u) << "no temporary file stays";
}

TEST(Files, FailWithASentenceThatNamesThem) {
  const TTemporaryFolder folder;
  const auto file = folder.Write("file", "old");
  const auto readOnly = folder.Write("read-only", "old");
  SetFileAttributesOf(readOnly, faReadOnly);
  for (const auto& path : {folder / "missing", folder.Path()})
    EXPECT_THAT([&] { ReadWholeFile(path); },
                ThrowsMessage<std::runtime_error>(HasSubstr("Cannot read " + path + ": ")));
  for (const auto& path :
       {folder / "no folder/file", file + PathDelim + "below a file", folder.Path(), readOnly})
    EXPECT_THAT([&] { WriteFileAtomically(path, "new"); },
                ThrowsMessage<std::runtime_error>(HasSubstr("Cannot write " + path + ": ")));
  EXPECT_EQ(ReadWholeFile(readOnly), "old");
  EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre("file", "read-only"));
}

TEST(Files, RemoveTemporaryFilesOfKilledProcesses) {
  const TTemporaryFolder folder;
  const auto own = ".corvane-" + std::to_string(getpid()) + "-";
  const std::string gone = ".corvane-4194305-";  // beyond the numbers of processes on Linux, and odd
  std::vector<std::string> left{"a.cdp", gone + "new.tmp", gone + "0.txt", ".corvane-x-0.tmp"};
  // More than this process has written so far.
  for (int i = 0; i < 300; ++i) left.push_back(own + std::to_string(i) + ".tmp");
  for (const auto& name : left) folder.Write(name, "left");
  for (const auto& name : {gone + "0.tmp", gone + "1.tmp", left[2], left[3], left[4]})
    fs::last_write_time(ToFilePath(folder.Write(name, "left")),
                        fs::file_time_type::clock::now() - std::chrono::hours(2));
  WriteFileAtomically(folder / "a.cdp", "new");
  EXPECT_EQ(ReadWholeFile(folder / "a.cdp"), "new");
  EXPECT_THAT(NamesIn(folder.Path()), testing::UnorderedElementsAreArray(left));
}

TEST(Files, AreNeverSeenHalfWritten) {
  const TTemporaryFolder folder;
  const std::string contents[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
  const auto file = folder.Write("a.cdp", contents[0]);
  std::vector<std::thread> writers;
  for (const auto& text : contents)
    writers.emplace_back([&] {
      for (int i = 0; i < 20; ++i) WriteFileAtomically(file, text);
    });
  for (int i = 0; i < 50; ++i) EXPECT_THAT(ReadWholeFile(file), testing::AnyOf(contents[0], contents[1]));
  for (auto& writer : writers) writer.join();
  EXPECT_THAT(NamesIn(folder.Path()), UnorderedElementsAre("a.cdp"));
}

}  // namespace kestrel
