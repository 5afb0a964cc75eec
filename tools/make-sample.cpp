// Makes a sample to try the add-in on: a Subversion repository, a copy of the sample project mapped to it with its files
// under control, and a registry of its own in which the provider is installed.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "Repository.h"
#include "host/Paths.h"
#include "host/Registry.h"
#include "host/System.h"
#include "host/Text.h"
#include "provider/sccapiintf.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* kProviderName = "Subversion";
constexpr const char* kProjectName = "/trunk/Flight";
constexpr const char* kUsage =
    R"(Usage: make-sample FOLDER PROJECT PROVIDER

Makes, in FOLDER (which must not exist yet):
  repository/   a Subversion repository
  work/         a copy of the folder PROJECT, mapped to it, its files under control
  registry/     a registry (CORVANE_REGISTRY_DIR) with the library PROVIDER installed
)";

void RegisterProvider(const std::string& library) {
  const std::string key = "Software\\Subversion\\SCC";
  TRegistry registry;
  registry.OpenKey(key);
  registry.WriteString(kServerName, kProviderName);
  registry.WriteString(kServerPath, library);
  registry.OpenKey(kInstalledProvidersKey);
  registry.WriteString(kProviderName, key);
  registry.OpenKey(kProviderKey);
  registry.WriteString(kProviderRegKey, key);
}

class TProviderLines final : public IProviderSink {
 public:
  void Line(Kind, const std::string& text) override { std::puts(text.c_str()); }
  void Box(const std::string& text) override { std::puts(text.c_str()); }
};

void Check(bool done, const TStateMessages& messages) {
  if (!done) throw std::runtime_error(messages[1] + messages[2]);
}

/// Puts everything in `work` under control and writes the mapping file that binds the project.
void PlaceProject(const std::string& library, const std::string& work, const std::string& url) {
  TProviderLines lines;
  auto* before = SetProviderSink(&lines);
  TSCCProviderList provider(library, 0, GetUserNameText(32));
  provider.Add(work);
  auto& project = *provider.GetItem(0);
  project.set_ProjName(kProjectName);
  project.set_ProjPath(url);
  TStateMessages messages;
  Check(project.OpenProject(messages) == scc::SCC_OK, messages);
  TStringList files;
  std::string mapped;
  for (const auto& entry : fs::directory_iterator(work)) {
    if (!entry.is_regular_file()) continue;
    files.push_back(entry.path().string());
    if (entry.path().extension() == ".qvxproj") mapped = ChangeFileExt(files.back(), ".cdp");
  }
  Check(project.AddFile(files, "The sample project", false, messages), messages);
  WriteFileAtomically(mapped, Format("[%s]\nProjName=%s\nAuxProjPath=%s\nUserName=%s\n",
                                     {kProviderName, kProjectName, url, project.get_UserName()}));
  project.CloseProject(messages);
  SetProviderSink(before);
}

void Make(const fs::path& folder, const fs::path& projectFolder, const std::string& library) {
  if (fs::exists(folder)) throw std::runtime_error("The folder " + folder.string() + " exists already.");
  const auto work = folder / "work";
  const auto registry = folder / "registry";
  fs::create_directories(registry);
  setenv("CORVANE_REGISTRY_DIR", registry.c_str(), 1);
  fs::copy(projectFolder, work, fs::copy_options::recursive);
  RegisterProvider(library);
  const auto url = svnscc::CreateRepository((folder / "repository").string());
  PlaceProject(library, work.string(), url);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    const bool asked = argc == 2 && std::string(argv[1]) == "--help";
    std::fputs(kUsage, asked ? stdout : stderr);
    return asked ? 0 : 2;
  }
  const fs::path folder = fs::absolute(argv[1]);
  try {
    Make(folder, fs::absolute(argv[2]), fs::absolute(argv[3]).string());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make-sample: %s\n", error.what());
    return 1;
  }
}
