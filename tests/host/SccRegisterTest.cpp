// Drives the real program: on POSIX with a registry of its own, on Windows with the machine's.

#include <sstream>

#include "provider/sccapiintf.h"
#include "support/Environment.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "support/Testing.h"
#include "system/FileName.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#if defined(_WIN64)
#include "support/OtherBitness.h"
#endif

namespace kestrel {

using namespace addin;

namespace {

using TWords = std::vector<std::string>;

class SccRegister : public testing::Test {
 protected:
  void SetUp() override {
    if (Read(kProviderKey, kProviderRegKey) != kNoKey || Read(kInstalledProvidersKey, "") != kNoKey)
      GTEST_SKIP() << "this machine has providers, which must not be touched";
  }
  void TearDown() override {
    if (IsSkipped()) return;
    for (const auto& key :
         {std::string(kProviderKey), std::string("Software\\Tiny"), std::string("Software\\Größe = 2"),
          std::string("Software\\Third"), std::string("Software\\Vendor"),
          kFor32Bits + "SourceCodeControlProvider", kFor32Bits + "Vendor"})
      TRegistry().DeleteKey(key);
  }

  static TProgramResult Run(const TWords& arguments) {
    auto result = RunProgram(SCC_REGISTER, arguments);
    std::erase(result.Output, '\r');
    return result;
  }
  static void Do(const TWords& arguments) {
    const auto result = Run(arguments);
    EXPECT_EQ(result.Status, 0) << testing::PrintToString(arguments) << ": " << result.Errors;
    EXPECT_THAT(result.Errors, IsEmpty());
  }
  /// The lines of `list`; registries have orders of their own.
  static TWords List() {
    std::istringstream output(Run({"list"}).Output);
    TWords lines;
    for (std::string line; std::getline(output, line);) lines.push_back(line);
    return lines;
  }
  static std::string Read(const std::string& key, const std::string& name) {
    TRegistry registry;
    return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : kNoKey;
  }
  static void Write(const std::string& key, const std::string& name, const std::string& value) {
    TRegistry registry;
    registry.OpenKey(key);
    registry.WriteString(name, value);
  }
  static std::string Default() { return Read(kProviderKey, kProviderRegKey); }

  const std::string kFor32Bits = "Software\\WOW6432Node\\";
  static constexpr const char* kNoKey = "no such key";
  const TTemporaryFolder folder_;
  const std::string missing_ = folder_ / "no such/library.so";
  const TEnvironmentVariable variable_{"CORVANE_REGISTRY_DIR", folder_.Path().c_str()};
};

const std::string kTiny = NormalizePath(TINY_PROVIDER);

}  // namespace

TEST_F(SccRegister, InstallsListsChoosesAndRemovesProviders) {
  EXPECT_THAT(Run({"list"}).Output, HasSubstr("No source control providers"));

  Do({"add", "Tiny", kTiny});
  EXPECT_EQ(Read(kInstalledProvidersKey, "Tiny"), "Software\\Tiny\\SCC");
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kServerName), "Tiny");
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kServerPath), kTiny);
  EXPECT_EQ(Default(), "Software\\Tiny\\SCC") << "the first one is the default";

  const auto other = folder_.MakeFolder("Größe 名前") + std::string(1, PathDelim) + ExtractFileName(kTiny);
  std::filesystem::copy(ToFilePath(kTiny), ToFilePath(other));
  Do({"add", "Größe = 2", other});
  EXPECT_EQ(Default(), "Software\\Tiny\\SCC");
  Do({"add", "--default", "Third", missing_, "--force"});
  EXPECT_EQ(Default(), "Software\\Third\\SCC");
  EXPECT_THAT(List(), UnorderedElementsAre("  Tiny  " + kTiny, "  Größe = 2  " + other,
                                           "* Third  " + missing_ + " (not found)"));

  Do({"default", "GRÖßE = 2"});
  Do({"remove", "Third"});
  EXPECT_EQ(Default(), "Software\\Größe = 2\\SCC") << "another one's removal leaves the default";
  EXPECT_THAT(Run({"remove", "Größe = 2"}).Output, HasSubstr("no default provider"));
  EXPECT_EQ(Default(), "");
  EXPECT_THAT(List(), UnorderedElementsAre("  Tiny  " + kTiny));
  EXPECT_EQ(Read("Software\\Third\\SCC", kServerName), "no such key");
}

TEST_F(SccRegister, ChangesThePathOfAnInstalledProvider) {
  Do({"add", "Tiny", missing_, "--force", "--search-path"});
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kSearchPath), "1");
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + missing_ + " (not found) (searches PATH)"));
  Do({"add", "TINY", kTiny});
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kSearchPath), "") << "the last word counts";
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny));
  Do({"isolate", "Tiny"});
  Do({"isolate", "tiny"});  // made anew, not isolated twice
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny + " (isolated)"));
  EXPECT_TRUE(FileExists(Read("Software\\Tiny\\SCC", kServerPath)));
  Do({"direct", "Tiny"});
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny));
  Do({"add", "Other: 2", kTiny, "--isolated"});
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny, "  Other: 2  " + kTiny + " (isolated)"));
  Do({"remove", "Other: 2"});
}

TEST_F(SccRegister, LeavesForeignValuesAlone) {
  Write(kInstalledProvidersKey, "Vendor SCC", "Software\\Vendor");
  Write("Software\\Vendor", kServerName, "Vendor SCC");
  Write("Software\\Vendor", kServerPath, missing_);
  Write("Software\\Vendor", "Licence", "1234");
  Write("Software\\Tiny", "Version", "1");
  Do({"add", "Tiny", kTiny});
  Do({"add", "Vendor SCC", kTiny, "--search-path"});
  EXPECT_EQ(Read("Software\\Vendor", kServerPath), kTiny) << "its own key stays its key";
  Do({"remove", "Tiny"});
  Do({"remove", "Vendor SCC"});
  EXPECT_EQ(Read("Software\\Vendor", "Licence"), "1234");
  for (const char* value : {kServerPath, kSearchPath}) EXPECT_EQ(Read("Software\\Vendor", value), "");
  EXPECT_EQ(Read("Software\\Tiny", "Version"), "1");

  Write(kInstalledProvidersKey, "No key", "");
  EXPECT_THAT(Run({"default", "No key"}).Errors, HasSubstr("names no key"));
  Do({"remove", "NO KEY"});
  EXPECT_THAT(Run({"list"}).Output, HasSubstr("No source control providers"));
}

TEST_F(SccRegister, RefusesBadArgumentsWithAReason) {
  const auto text = folder_.Write("text.so", "not a library");
  const struct {
    TWords arguments;
    int status;
    std::string words;
  } rows[] = {
      {{"add", "Tiny", "relative.so"}, 1, "relative.so is not an absolute path."},
      {{"add", "Tiny", "C:relative.so"}, 1, "C:relative.so is not an absolute path."},
      {{"add", "Tiny", "\\relative.so"}, 1, "\\relative.so is not an absolute path."},
      {{"add", "Tiny", "relative.so", "--force"}, 1, "relative.so is not an absolute path."},
      {{"add", "Tiny", missing_}, 1, missing_ + " does not exist."},
      {{"add", "Tiny", folder_.Path()}, 1, " does not exist."},
      {{"add", "Tiny", text}, 1, "cannot be loaded: "},
      {{"add", "Tiny", CORVANE_LIBRARY}, 1, "does not export SccInitialize."},
      {{"add", "", kTiny}, 1, "cannot be the name"},
      {{"add", " Tiny", kTiny}, 1, "cannot be the name"},
      {{"add", "A\\B", kTiny}, 1, "cannot be the name"},
      {{"add", "Tiny\n", kTiny}, 1, "cannot be the name"},
      {{"remove", "Tiny"}, 1, "under the name \"Tiny\"."},
      {{"default", "Größe 名前"}, 1, "under the name \"Größe 名前\"."},
      {{}, 2, "A command is required"},
      {{"frobnicate"}, 2, "not expected: frobnicate"},
      {{"--frobnicate"}, 2, "not expected: --frobnicate"},
      {{"add", "Tiny"}, 2, "PATH is required"},
      {{"list", "all"}, 2, "not expected: all"},
      {{"remove", "Tiny", "--force"}, 2, "not expected: --force"},
      {{"add", "--", "--default"}, 2, "PATH is required"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.arguments));
    const auto result = Run(row.arguments);
    EXPECT_EQ(result.Status, row.status);
    EXPECT_THAT(result.Errors, HasSubstr(row.words));
    EXPECT_THAT(result.Output, IsEmpty());
  }
  EXPECT_EQ(Default(), kNoKey) << "nothing was written";
  EXPECT_THAT(Run({"--help"}).Output, HasSubstr("Usage: "));
}

#if defined(_WIN64)
TEST_F(SccRegister, IsolatesProvidersOfTheOtherBitnessOnly) {
  const auto library = folder_.Write("other.dll", ForTheOtherBitness(ReadWholeFile(kTiny)));
  const auto folder = NormalizePath(ExtractFileDir(SCC_REGISTER)) + "\\32-bit";
  const auto host = folder + "\\scc-provider-host.exe";
  std::filesystem::remove_all(ToFilePath(folder));
  EXPECT_THAT(Run({"add", "Tiny", library}).Errors,
              HasSubstr("32-bit library. It can only run in a separate"));
  EXPECT_THAT(Run({"add", "Tiny", library, "--isolated"}).Errors, HasSubstr(host + ", does not exist"));

  Write(kFor32Bits + "SourceCodeControlProvider\\InstalledSCCProviders", "Vendor", "Software\\Vendor");
  Write(kFor32Bits + "Vendor", kServerPath, library);
  EXPECT_THAT(List(), UnorderedElementsAre(HasSubstr("  Vendor  " + library + " (for 32-bit programs")));
  std::filesystem::create_directory(ToFilePath(folder));
  std::filesystem::copy(ToFilePath(kTiny), ToFilePath(host));
  Do({"isolate", "Vendor"});
  EXPECT_THAT(List(), UnorderedElementsAre("  Vendor  " + library + " (isolated)"));
  EXPECT_THAT(Run({"direct", "Vendor"}).Errors, HasSubstr("can only run in a separate process"));
  Do({"remove", "Vendor"});
  std::filesystem::remove_all(ToFilePath(folder));
}
#endif

}  // namespace kestrel
