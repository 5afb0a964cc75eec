// Creates a sample: a Subversion repository, a copy of the sample project under its control, and a registry with the
// provider.
#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "ProxyLibrary.h"
#include "provider/sccapiintf.h"
#include "subversion/project/UsedRepositories.h"
#include "subversion/svn/Repository.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"
#include "system/Text.h"

using namespace kestrel;
using namespace kestrel::addin;

namespace {

namespace fs = std::filesystem;

constexpr const char* kProviderName = "Subversion";

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
  void Line(TSeverity, const std::string& text) override { std::puts(text.c_str()); }
  void Box(const std::string& text) override { std::puts(text.c_str()); }
};

void Check(bool done, const TStateMessages& messages) {
  if (!done) throw std::runtime_error(messages[1] + messages[2]);
}

/// A user's working copy, operated through the provider.
class TUser {
 public:
  TUser(const std::string& library, const std::string& work, const std::string& url, const std::string& name,
        const std::string& user)
      : provider_(library, 0, user), work_(work), url_(url), name_(name) {
    provider_.Add(work);
    project_ = provider_.GetItem(0);
    project_->set_ProjName(name_);
    project_->set_ProjPath(url);
    TStateMessages messages;
    Check(project_->OpenProject(messages) == scc::SCC_OK, messages);
  }
  TUser(const TUser&) = delete;
  TUser& operator=(const TUser&) = delete;
  ~TUser() {
    TStateMessages ignored;
    project_->CloseProject(ignored);
  }

  void AddEverything() {
    TStringList files;
    for (const auto& entry : fs::directory_iterator(work_))
      if (entry.is_regular_file()) files.push_back(entry.path().string());
    TStateMessages messages;
    Check(project_->AddFile(files, "The sample project", false, messages), messages);
  }
  void GetEverything() {
    TStateMessages messages;
    Check(project_->GetFilesAndDirs({work_}, messages) == scc::SCC_OK, messages);
  }
  /// Writes the mapping file beside the project file.
  void Map() {
    for (const auto& entry : fs::directory_iterator(work_)) {
      if (entry.path().extension() != ".qvxproj" && entry.path().extension() != ".cbp") continue;
      WriteFileAtomically(ChangeFileExt(entry.path().string(), ".cdp"),
                          Format("[%s]\nProjName=%s\nAuxProjPath=%s\nUserName=%s\n",
                                 {kProviderName, name_, url_, project_->get_UserName()}));
    }
  }

 private:
  TSCCProviderList provider_;
  TSCCProviderProject* project_;
  std::string work_;
  std::string url_;
  std::string name_;  // of the project in the repository
};

struct TArguments {
  std::string Folder;
  std::string Project;
  std::string Provider;
  std::vector<std::string> Users;
  bool Direct = false;
  bool Player = false;
};

void Make(const TArguments& arguments) {
  const auto folder = fs::absolute(arguments.Folder);
  const auto library = fs::absolute(arguments.Provider).string();
  const auto& users = arguments.Users;
  if (fs::exists(folder)) throw std::runtime_error("The folder " + folder.string() + " exists already.");
  const auto work = folder / "work";
  const auto registry = folder / "registry";
  fs::create_directories(registry);
  setenv("CORVANE_REGISTRY_DIR", registry.c_str(), 1);
  fs::copy(fs::absolute(arguments.Project), work, fs::copy_options::recursive);
  const auto* host = arguments.Player ? kProviderHostPlayer : kProviderHost;
  RegisterProvider(arguments.Direct ? library : InstallProxyLibrary(kProviderName, library, false, host));
  const auto url = svnscc::CreateRepository((folder / "repository").string());
  const auto name = "/trunk/" + fs::absolute(arguments.Project).filename().string();
  svnscc::MarkProjectUsed(url, name);  // as choosing it in the provider's dialog does

  TProviderLines lines;
  auto* before = SetProviderSink(&lines);
  for (std::size_t i = 0; i < users.size(); ++i) {
    const auto own = i == 0 ? work : folder / ("work of " + users[i]);
    fs::create_directories(own);
    TUser user(library, own.string(), url, name, users[i]);
    if (i == 0)
      user.AddEverything();
    else
      user.GetEverything();
    user.Map();
  }
  SetProviderSink(before);
}

}  // namespace

int main(int argc, char** argv) {
  TArguments arguments;
  CLI::App parser(
      "Makes a sample to try the add-in on, in FOLDER:\n"
      "  repository/     a Subversion repository\n"
      "  work/           a copy of PROJECT, mapped to the repository for USER, its files under control\n"
      "  work of OTHER/  a working copy of another user, mapped\n"
      "  registry/       a registry (CORVANE_REGISTRY_DIR) in which PROVIDER is installed",
      "make-sample");
  for (const auto* label : {"TEXT", "REQUIRED"}) parser.get_formatter()->label(label, "");
  parser.add_option("FOLDER", arguments.Folder, "Must not exist yet")->required();
  parser.add_option("PROJECT", arguments.Project, "The folder of a project")->required();
  parser.add_option("PROVIDER", arguments.Provider, "The library of the Subversion provider")->required();
  parser.add_option("USER", arguments.Users, "The users; without any, the current one");
  auto* const direct = parser.add_flag("--direct", arguments.Direct, "Load the provider into its client");
  parser
      .add_flag("--player", arguments.Player,
                "Run the provider in a process whose windows macros can operate")
      ->excludes(direct);
  try {
    parser.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return parser.exit(error) == 0 ? 0 : 2;
  }
  if (arguments.Users.empty()) arguments.Users.push_back(GetUserNameText(32));
  try {
    Make(arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "make-sample: %s\n", error.what());
    return 1;
  }
}
