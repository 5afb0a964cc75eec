// Drives the real program: on POSIX with a registry of its own, on Windows with the machine's.
#include <sstream>

#include "provider/sccapiintf.h"
#include "support/Environment.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "support/Testing.h"
#include "system/Paths.h"
#if defined(_WIN64)
#include "support/OtherBitness.h"
#endif

namespace kestrel {

using namespace addin;

using TWords = std::vector<std::string>;

class SccRegister : public testing::Test {
 protected:
  void SetUp() override {
    if (ReadValue(kProviderKey, kProviderRegKey) != kNoKey || ReadValue(kInstalledProvidersKey, "") != kNoKey)
      GTEST_SKIP() << "this machine has providers, which must not be touched";
  }
  void TearDown() override {
    if (IsSkipped()) return;
    const std::string keys[] = {kProviderKey,          "Software\\Tiny",
                                "Software\\Größe = 2", "Software\\Third",
                                "Software\\Vendor",    kFor32Bits + "SourceCodeControlProvider",
                                kFor32Bits + "Vendor"};
    for (const auto& key : keys) TRegistry().DeleteKey(key);
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
  static std::string Default() { return ReadValue(kProviderKey, kProviderRegKey); }

  const std::string kFor32Bits = "Software\\WOW6432Node\\";
  static constexpr const char* kNoKey = "no such key";
  const TTemporaryFolder folder_;
  const std::string missing_ = folder_ / "no such/library.so";
  const TEnvironmentVariable variable_{"CORVANE_REGISTRY_DIR", folder_.Path().c_str()};
};

const std::string kTiny = NormalizePath(TINY_PROVIDER);

TEST_F(SccRegister, InstallsListsChoosesAndRemovesProviders) {
  EXPECT_THAT(Run({"list"}).Output, HasSubstr("No source control providers"));

  Do({"add", "Tiny", kTiny});
  EXPECT_EQ(ReadValue("Software\\Tiny\\SCC", kServerName), "Tiny");
  EXPECT_EQ(Default(), "Software\\Tiny\\SCC") << "the first one is the default";

  const auto other = folder_.MakeFolder("Größe 名前") + std::string(1, PathDelim) + ExtractFileName(kTiny);
  fs::copy(ToFilePath(kTiny), ToFilePath(other));
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
  EXPECT_EQ(ReadValue("Software\\Third\\SCC", kServerName), kNoKey);
}

TEST_F(SccRegister, ChangesThePathOfAnInstalledProvider) {
  Do({"add", "Tiny", missing_, "--force", "--search-path"});
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + missing_ + " (not found) (searches PATH)"));
  Do({"add", "TINY", kTiny});
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny));
  for (const char* name : {"Tiny", "tiny"}) Do({"isolate", name});  // made anew, not isolated twice
  EXPECT_TRUE(FileExists(ReadValue("Software\\Tiny\\SCC", kServerPath)));
  Do({"direct", "Tiny"});
  Do({"add", "Other: 2", kTiny, "--isolated"});
  EXPECT_THAT(List(), UnorderedElementsAre("* Tiny  " + kTiny, "  Other: 2  " + kTiny + " (isolated)"));
  Do({"remove", "Other: 2"});
}

TEST_F(SccRegister, LeavesForeignValuesAlone) {
  WriteValue(kInstalledProvidersKey, "Vendor SCC", "Software\\Vendor");
  WriteValue("Software\\Vendor", kServerName, "Vendor SCC");
  WriteValue("Software\\Vendor", kServerPath, missing_);
  WriteValue("Software\\Vendor", "Licence", "1234");
  WriteValue("Software\\Tiny", "Version", "1");
  Do({"add", "Tiny", kTiny});
  Do({"add", "Vendor SCC", kTiny, "--search-path"});
  EXPECT_EQ(ReadValue("Software\\Vendor", kServerPath), kTiny) << "its own key stays its key";
  Do({"remove", "Tiny"});
  Do({"remove", "Vendor SCC"});
  EXPECT_EQ(ReadValue("Software\\Vendor", "Licence"), "1234");
  for (const char* value : {kServerPath, kSearchPath}) EXPECT_EQ(ReadValue("Software\\Vendor", value), "");
  EXPECT_EQ(ReadValue("Software\\Tiny", "Version"), "1");

  WriteValue(kInstalledProvidersKey, "No key", "");
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

  WriteValue(kFor32Bits + "SourceCodeControlProvider\\InstalledSCCProviders", "Vendor", "Software\\Vendor");
  WriteValue(kFor32Bits + "Vendor", kServerPath, library);
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
