// The registry as files.
#include <thread>

#include "host/RegistryFixture.h"
#include "support/Environment.h"
#include "support/RunProgram.h"
#include "support/TemporaryFolder.h"
#include "system/posix/RegistryLayers.h"

namespace kestrel {

namespace {

constexpr const char* kInstalled = "Software\\SourceCodeControlProvider\\InstalledSCCProviders";

class RegistryFiles : public Registry {
 protected:
  const TTemporaryFolder folder_;
  const std::string directory_ = folder_ / "registry";
  const std::string machine_ = folder_ / "registry/local-machine.ini";
  const TEnvironmentVariable variable_{"CORVANE_REGISTRY_DIR", directory_.c_str()};
};

}  // namespace

TEST_F(RegistryFiles, ReadsWhatAPersonTyped) {
  folder_.Write("registry/local-machine.ini",
                "\xEF\xBB\xBF# Providers of this machine\r\n"
                "[software\\sourcecodecontrolprovider\\InstalledSCCProviders]\r\n"
                "Zebra SCC = Software\\Zebra\\SCC\r\n"
                "; the one for Windows\r\n"
                "Über = Software\\Über\r\n"
                "alpha=Software\\Alpha\r\n"
                "a line that is none\r\n"
                "[Software\\Zebra\\SCC]\r\n"
                "Licence%3D=two%0D%0Alines\r\n"
                "SccServerPath=\"C:\\Program Files\\100%20;x = y # z.dll\"");
  EXPECT_THAT(Names(kInstalled), ElementsAre("Zebra SCC", "Über", "alpha"));
  EXPECT_EQ(ReadValue(kInstalled, "ÜBER"), "Software\\Über");
  EXPECT_EQ(ReadValue("\\SOFTWARE\\zebra\\scc\\", "SCCServerPath"),
            "C:\\Program Files\\100%20;x = y # z.dll");
  EXPECT_EQ(ReadValue("Software\\Zebra\\SCC", "Licence="), "two\r\nlines") << "as earlier versions wrote it";
  EXPECT_EQ(ReadValue("Software\\Zebra\\SCC", "SccServerName"), "");
}

TEST_F(RegistryFiles, ChangesOneValueAndLeavesTheRestOfTheFile) {
  const std::string before = "# Mine\n\n# Installed\n[Software\\A]\nFirst=1\nno value\n# why\n";
  folder_.Write("registry/local-machine.ini", before);
  WriteValue("SOFTWARE\\a\\", "FIRST", "two\nlines");
  WriteValue("Software\\B]", "a=b", "x");
  EXPECT_EQ(
      ReadWholeFile(machine_),
      "# Mine\n\n# Installed\n[Software\\A]\nFirst=%\"two%0Alines\"\nno value\n# why\n\n[Software\\B]]\n"
      "%\"a%3Db\"=x\n");
  EXPECT_TRUE(TRegistry().DeleteKey("Software\\b]"));
  WriteValue("Software\\A", "First", "1");
  EXPECT_EQ(ReadWholeFile(machine_), before);
}

TEST_F(RegistryFiles, KeepsItsRootsApartInTheUsersConfiguration) {
  const TEnvironmentVariable noDirectory("CORVANE_REGISTRY_DIR", nullptr);
  const TEnvironmentVariable config("XDG_CONFIG_HOME", folder_.Path().c_str());
  WriteValue("Kestrel host test\\A", "name", "user", TRegRoot::CurrentUser);
  WriteValue("Kestrel host test\\A", "name", "machine", TRegRoot::LocalMachine);
  EXPECT_TRUE(fs::exists(folder_ / "corvane/current-user.ini"));
  EXPECT_TRUE(fs::exists(folder_ / "corvane/local-machine.ini"));

  const TEnvironmentVariable home("HOME", (folder_ / "home").c_str());
  for (const char* none : {static_cast<const char*>(nullptr), "", "relative"}) {
    const TEnvironmentVariable noConfig("XDG_CONFIG_HOME", none);
    WriteValue("A", "name", "home", TRegRoot::CurrentUser);
    EXPECT_TRUE(fs::remove_all(folder_ / "home/.config/corvane")) << (none ? none : "unset");
  }
}

TEST_F(RegistryFiles, ReadsTheUsersValuesBeforeTheMachines) {
  const auto user = folder_.Write("user.ini", "[Installed]\nMine=u1\nSHARED=u2\n[Only\\Mine]\na=b\n");
  const auto machine =
      folder_.Write("machine.ini", "[installed]\nFirst=m1\nshared=m2\nLast=m3\n[Software\\M]\na=b\n");
  const TRegistryLayers layers({user, machine});

  EXPECT_THAT(layers.ValueNames("Installed"), ElementsAre("Mine", "SHARED", "First", "Last"));
  EXPECT_EQ(layers.Value("Installed", "Shared"), "u2");
  EXPECT_EQ(layers.Value("Installed", "first"), "m1");
  EXPECT_TRUE(layers.HasKey("Only") && layers.HasKey("Software\\M"));

  layers.SetValue("Installed", "First", "changed");
  EXPECT_EQ(layers.Value("Installed", "First"), "changed");
  EXPECT_TRUE(layers.DeleteValue("Installed", "Shared"));
  EXPECT_EQ(layers.Value("Installed", "Shared"), "m2") << "the machine's shines through again";
  EXPECT_FALSE(layers.DeleteValue("Installed", "Last"));
  EXPECT_FALSE(layers.DeleteKey("Software\\M"));
  EXPECT_EQ(ReadWholeFile(machine), "[installed]\nFirst=m1\nshared=m2\nLast=m3\n[Software\\M]\na=b\n");
}

TEST_F(RegistryFiles, KeepsABackupOfAFileThatIsNotText) {
  EXPECT_FALSE(KeyExists("Key")) << "no file at all";
  const auto broken = std::string("[Key]\nname=value\n") + std::string(4096, '\0') +
                      "\x7F"
                      "ELF";
  folder_.Write("registry/local-machine.ini", broken);
  EXPECT_FALSE(KeyExists("Key"));
  WriteValue("Key", "name", "new");
  EXPECT_EQ(ReadValue("Key", "name"), "new");
  EXPECT_EQ(ReadWholeFile(machine_ + ".broken"), broken);

  for (const char* text :
       {"[", "[Key", "=", "]\n[]\n==", "[Key]\nname", "\xFF\xFE[\n", "[Key\nname=value\n[Key"}) {
    folder_.Write("registry/local-machine.ini", text);
    Names("Key");
    WriteValue("Key", "other", "kept");
    EXPECT_EQ(ReadValue("Key", "other"), "kept") << text;
  }
}

TEST_F(RegistryFiles, ReportsWhatItCannotStoreAndKeepsTheOldValues) {
  WriteValue("Key", "name", "old");
  SetFileAttributesOf(machine_, faReadOnly);
  const auto expectFailure = [](const std::string& named) {
    EXPECT_THAT([] { WriteValue("Key", "name", "new"); },
                ThrowsMessage<std::runtime_error>(HasSubstr(named)));
  };
  expectFailure(machine_);
  EXPECT_THAT([] { TRegistry().DeleteKey("Key"); }, ThrowsMessage<std::runtime_error>(HasSubstr(machine_)));
  EXPECT_EQ(ReadValue("Key", "name"), "old");

  fs::remove(machine_);
  fs::create_directory(machine_);
  expectFailure(machine_);
  EXPECT_FALSE(KeyExists("Key"));
  const auto result = RunProgram(SCC_REGISTER, {"add", "Tiny", TINY_PROVIDER});
  EXPECT_EQ(result.Status, 1);
  EXPECT_THAT(result.Errors, HasSubstr("Cannot write " + machine_));

  fs::remove_all(directory_);
  folder_.Write("registry", "a file where the folder should be");
  expectFailure(directory_);
  EXPECT_FALSE(TRegistry().DeleteKey("Key")) << "nothing there to delete is no failure";
}

TEST_F(RegistryFiles, LosesNoValueOfConcurrentWriters) {
  constexpr int kWriters = 8, kValues = 10;
  std::vector<std::thread> writers;
  for (int writer = 0; writer < kWriters; ++writer)
    writers.emplace_back([writer] {
      for (int i = 0; i < kValues; ++i) WriteValue("Key", std::to_string(writer * kValues + i), "value");
    });
  for (auto& writer : writers) writer.join();
  EXPECT_EQ(Names("Key").size(), std::size_t{kWriters * kValues});
}

}  // namespace kestrel
