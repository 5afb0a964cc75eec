// Drives the real program with a registry of its own.
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>

#include "host/Registry.h"
#include "provider/sccapiintf.h"
#include "support/Environment.h"
#include "support/TemporaryFolder.h"

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class SccRegister : public testing::Test {
 protected:
  struct TResult {
    int Status;
    std::string Output, Errors;
  };

  /// `arguments` as a shell reads them.
  TResult Run(const std::string& arguments) const {
    const auto errors = folder_ / "errors";
    FILE* pipe = popen(("'" SCC_REGISTER "' " + arguments + " 2>'" + errors + "'").c_str(), "r");
    std::string output;
    std::array<char, 4096> block;
    while (const auto size = std::fread(block.data(), 1, block.size(), pipe))
      output.append(block.data(), size);
    const int status = pclose(pipe);
    return {WEXITSTATUS(status), output, ReadWholeFile(errors)};
  }
  void Do(const std::string& arguments) const {
    const auto result = Run(arguments);
    EXPECT_EQ(result.Status, 0) << arguments << ": " << result.Errors;
    EXPECT_THAT(result.Errors, IsEmpty());
  }
  static std::string Read(const std::string& key, const std::string& name) {
    TRegistry registry;
    return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : "no such key";
  }
  static std::string Default() { return Read(kProviderKey, kProviderRegKey); }

  const TTemporaryFolder folder_;
  const TEnvironmentVariable variable_{"CORVANE_REGISTRY_DIR", folder_.Path().c_str()};
};

const std::string kTiny = "'" TINY_PROVIDER "'";

}  // namespace

TEST_F(SccRegister, InstallsListsChoosesAndRemovesProviders) {
  EXPECT_THAT(Run("list").Output, HasSubstr("No source control providers"));

  Do("add Tiny " + kTiny);
  EXPECT_EQ(Read(kInstalledProvidersKey, "Tiny"), "Software\\Tiny\\SCC");
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kServerName), "Tiny");
  EXPECT_EQ(Read("Software\\Tiny\\SCC", kServerPath), TINY_PROVIDER);
  EXPECT_EQ(Default(), "Software\\Tiny\\SCC") << "the first one is the default";

  Do("add 'Größe = 2' " + kTiny);
  EXPECT_EQ(Default(), "Software\\Tiny\\SCC");
  Do("--default add Third /no/such/library.so --force");
  EXPECT_EQ(Default(), "Software\\Third\\SCC");
  EXPECT_EQ(Run("list").Output, "  Tiny  " TINY_PROVIDER "\n  Größe = 2  " TINY_PROVIDER
                                "\n* Third  /no/such/library.so (not found)\n");

  Do("default 'GRÖßE = 2'");
  Do("remove Third");
  EXPECT_EQ(Default(), "Software\\Größe = 2\\SCC") << "another one's removal leaves the default";
  EXPECT_THAT(Run("remove 'Größe = 2'").Output, HasSubstr("no default provider"));
  EXPECT_EQ(Default(), "");
  EXPECT_EQ(Run("list").Output, "  Tiny  " TINY_PROVIDER "\n");
  EXPECT_EQ(Read("Software\\Third\\SCC", kServerName), "no such key");
}

TEST_F(SccRegister, ChangesThePathOfAnInstalledProvider) {
  Do("add Tiny /old.so --force");
  Do("add TINY " + kTiny);
  EXPECT_EQ(Run("list").Output, "* Tiny  " TINY_PROVIDER "\n");
}

TEST_F(SccRegister, LeavesWhatOthersInstalled) {
  folder_.Write("local-machine.ini",
                "[Software\\SourceCodeControlProvider\\InstalledSCCProviders]\nVendor SCC=Software\\Vendor\n"
                "[Software\\Vendor]\nSccServerName=Vendor SCC\nSccServerPath=/v.so\nLicence=1234\n"
                "[Software\\Tiny]\nVersion=1\n");
  Do("add Tiny " + kTiny);
  Do("add 'Vendor SCC' " + kTiny);
  EXPECT_EQ(Read("Software\\Vendor", kServerPath), TINY_PROVIDER) << "its own key stays its key";
  Do("remove Tiny");
  Do("remove 'Vendor SCC'");
  EXPECT_EQ(Read("Software\\Vendor", "Licence"), "1234");
  EXPECT_EQ(Read("Software\\Vendor", kServerPath), "");
  EXPECT_EQ(Read("Software\\Tiny", "Version"), "1");
}

TEST_F(SccRegister, ExplainsWhatItCannotDo) {
  const auto text = folder_.Write("text.so", "not a library");
  const struct {
    std::string arguments;
    int status;
    const char* words;
  } rows[] = {
      {"add Tiny relative.so", 1, "relative.so is not an absolute path."},
      {"add Tiny relative.so --force", 1, "relative.so is not an absolute path."},
      {"add Tiny /no/such/library.so", 1, "/no/such/library.so does not exist."},
      {"add Tiny '" + folder_.Path() + "'", 1, " does not exist."},
      {"add Tiny '" + text + "'", 1, "cannot be loaded: "},
      {"add Tiny '" CORVANE_LIBRARY "'", 1, "does not export SccInitialize."},
      {"add '' " + kTiny, 1, "cannot be the name"},
      {"add ' Tiny' " + kTiny, 1, "cannot be the name"},
      {"add 'A\\B' " + kTiny, 1, "cannot be the name"},
      {"remove Tiny", 1, "under the name \"Tiny\"."},
      {"default Tiny", 1, "under the name \"Tiny\"."},
      {"", 2, "Usage: "},
      {"frobnicate", 2, "no command frobnicate"},
      {"--frobnicate", 2, "no option --frobnicate"},
      {"add Tiny", 2, "Wrong number of arguments for add."},
      {"list all", 2, "Wrong number of arguments for list."},
      {"remove Tiny --force", 2, "remove has no option --force."},
      {"add -- --default", 2, "Wrong number of arguments for add."},
  };
  for (const auto& row : rows) {
    const auto result = Run(row.arguments);
    EXPECT_EQ(result.Status, row.status) << row.arguments;
    EXPECT_THAT(result.Errors, HasSubstr(row.words)) << row.arguments;
    EXPECT_THAT(result.Output, IsEmpty()) << row.arguments;
  }
  EXPECT_FALSE(FileExists(folder_ / "local-machine.ini")) << "nothing was written";
  EXPECT_THAT(Run("--help").Output, StartsWith("Usage: "));

  std::filesystem::create_directory(folder_ / "local-machine.ini");
  const auto result = Run("add Tiny " + kTiny);
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Errors, HasSubstr("Cannot write " + folder_.Path()));
}
