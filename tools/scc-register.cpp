// scc-register: installs, removes and lists the machine's source control providers.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "ProxyLibrary.h"
#include "SccRegisterStrings.h"
#include "provider/sccapiintf.h"
#include "system/Library.h"
#include "system/Paths.h"
#include "system/Registry.h"
#include "system/System.h"

using namespace kestrel;
using namespace kestrel::addin;

namespace {

/// A command that failed; its text is a sentence.
struct EFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

constexpr const char* kEntryPoint = "SccInitialize";
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

/// Labels in the generated help; the usage line shows what is required.
constexpr std::pair<const char*, const char*> kHelpLabels[] = {
    {"Positionals", "Arguments"}, {"SUBCOMMAND", "COMMAND"}, {"TEXT", ""}, {"REQUIRED", ""}};

struct TArguments {
  std::string Name;  ///< of the provider
  std::string Path;  ///< of its library
  bool Default = false;
  bool Force = false;
  bool SearchPath = false;
  bool Isolated = false;
  bool IfNone = false;
};

// ------------------------------------------------------------------------------------------------- registry

std::string ReadValue(const std::string& key, const std::string& name,
                      TRegRoot root = TRegRoot::LocalMachine) {
  TRegistry registry(root);
  return registry.OpenKeyReadOnly(key) ? registry.ReadString(name) : std::string();
}

void WriteValue(const std::string& key, const std::string& name, const std::string& value) {
  TRegistry registry;
  registry.OpenKey(key);
  registry.WriteString(name, value);
}

void DeleteValue(const std::string& key, const std::string& name) {
  TRegistry registry;
  registry.OpenKey(key);
  registry.DeleteValue(name);
}

std::vector<std::string> InstalledProviders(TRegRoot root = TRegRoot::LocalMachine) {
  TRegistry registry(root);
  return registry.OpenKeyReadOnly(kInstalledProvidersKey) ? registry.GetValueNames()
                                                          : std::vector<std::string>();
}

/// The key that this program creates for a provider; other installers may have chosen another.
std::string OwnKey(const std::string& name) { return "Software\\" + name + "\\SCC"; }

bool IsInstalled(const std::string& name) {
  const auto names = InstalledProviders();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& installed) { return SameText(installed, name); });
}

/// The key of an installed provider; empty if there is no such provider or its entry has no key.
std::string KeyOf(const std::string& name) { return ReadValue(kInstalledProvidersKey, name); }

void RequireInstalled(const std::string& name) {
  if (!IsInstalled(name)) throw EFailure(Format(sNotInstalled, {name}));
}

/// Like KeyOf; throws EFailure instead of returning an empty string.
std::string InstalledKeyOf(const std::string& name) {
  RequireInstalled(name);
  const auto key = KeyOf(name);
  if (key.empty()) throw EFailure(Format(sNoKey, {name}));
  return key;
}

/// The library of a provider that is only installed for programs of the other bitness; empty for others.
std::string PathForOtherBits(const std::string& name) {
  constexpr auto kOther = TRegRoot::LocalMachineOtherBits;
  if (IsInstalled(name)) return {};
  return ReadValue(ReadValue(kInstalledProvidersKey, name, kOther), kServerPath, kOther);
}

bool IsDefault(const std::string& key) { return SameText(ReadValue(kProviderKey, kProviderRegKey), key); }

// ------------------------------------------------------------------------------------------------- commands

void CheckName(const std::string& name) {
  const auto isForbidden = [](char c) {
    return c == '\\' || static_cast<unsigned char>(c) < ' ' || c == 0x7F;
  };
  if (name.empty() || Trim(name) != name || std::any_of(name.begin(), name.end(), isForbidden))
    throw EFailure(Format(sBadName, {name}));
}

void CheckLibrary(const std::string& path, TDependencySearch search) {
  if (!FileExists(path)) throw EFailure(Format(sFileNotFound, {path}));
  std::string error;
  const auto module = LoadModule(path, &error, search);
  if (!module) throw EFailure(Format(sNotLoadable, {path, error}));
  const bool isProvider = FindSymbol(module, kEntryPoint);
  UnloadModule(module);
  if (!isProvider) throw EFailure(Format(sNotAProvider, {path, kEntryPoint}));
}

/// Throws EFailure for a library of the other bitness.
void RequireDirect(const std::string& path) {
  if (!CanLoadDirectly(path)) throw EFailure(Format(sOnlyIsolated, {path, LibraryBits(path)}));
}

void Choose(const std::string& name) {
  WriteValue(kProviderKey, kProviderRegKey, InstalledKeyOf(name));
  std::cout << Format(sIsDefault, {name});
}

/// Writes the provider's entry, or changes it.
void Install(const TArguments& arguments) {
  const auto& name = arguments.Name;
  const auto known = KeyOf(name);
  const auto key = known.empty() ? OwnKey(name) : known;
  const auto library =
      arguments.Isolated ? InstallProxyLibrary(name, arguments.Path, arguments.SearchPath) : arguments.Path;
  // The list is written last, so that a concurrent reader finds complete entries only.
  WriteValue(key, kServerName, name);
  WriteValue(key, kServerPath, library);
  if (arguments.SearchPath)
    WriteValue(key, kSearchPath, "1");
  else
    DeleteValue(key, kSearchPath);
  WriteValue(kInstalledProvidersKey, name, key);
}

void Add(const TArguments& arguments) {
  const auto& name = arguments.Name;
  const auto& path = arguments.Path;
  const bool isFirst = InstalledProviders().empty();
  if (arguments.IfNone && !isFirst) return;
  CheckName(name);
  if (!IsAbsolutePath(path)) throw EFailure(Format(sPathNotAbsolute, {path}));
  if (!arguments.Isolated) RequireDirect(path);
  if (!arguments.Force && CanLoadDirectly(path))
    CheckLibrary(path,
                 arguments.SearchPath ? TDependencySearch::OwnFolderPath : TDependencySearch::OwnFolder);
  Install(arguments);
  std::cout << Format(sAdded, {name});
  if (isFirst || arguments.Default) Choose(name);
}

void Remove(const TArguments& arguments) {
  const auto& name = arguments.Name;
  RequireInstalled(name);
  const auto key = KeyOf(name);
  const bool wasDefault = IsDefault(key);
  DeleteValue(kInstalledProvidersKey, name);
  if (SameText(key, OwnKey(name))) {
    TRegistry().DeleteKey(key);
  } else if (!key.empty()) {
    // A key created by another installer may hold more than this program knows.
    for (const char* value : {kServerName, kServerPath, kSearchPath}) DeleteValue(key, value);
  }
  if (IsInstalled(name)) throw EFailure(Format(sInstalledForAll, {name}));
  RemoveProxyLibrary(name);
  if (wasDefault) DeleteValue(kProviderKey, kProviderRegKey);
  std::cout << Format(sRemoved, {name});
  if (wasDefault && !InstalledProviders().empty()) std::cout << sNoDefault.str();
}

void MakeDefault(const TArguments& arguments) { Choose(arguments.Name); }

/// Path of the provider itself, if `path` is that of its isolating library.
std::string ProviderPath(const std::string& path) {
  const auto isolated = ProviderBehindProxy(path);
  return isolated.empty() ? path : NormalizePath(isolated);
}

/// For a provider that is isolated already this updates its library, e.g. after an update of this program.
void MakeIsolated(const TArguments& arguments) {
  const auto& name = arguments.Name;
  if (const auto path = PathForOtherBits(name); !path.empty()) {
    if (!FileExists(path)) throw EFailure(Format(sFileNotFound, {path}));
    Install({.Name = name, .Path = path, .Isolated = true});
  } else {
    const auto key = InstalledKeyOf(name);
    WriteValue(key, kServerPath,
               InstallProxyLibrary(name, ProviderPath(ReadValue(key, kServerPath)),
                                   ReadValue(key, kSearchPath) == "1"));
  }
  std::cout << Format(sIsIsolated, {name});
}

void MakeDirect(const TArguments& arguments) {
  const auto& name = arguments.Name;
  const auto key = InstalledKeyOf(name);
  const auto path = ProviderPath(ReadValue(key, kServerPath));
  RequireDirect(path);
  WriteValue(key, kServerPath, path);
  RemoveProxyLibrary(name);
  std::cout << Format(sIsDirect, {name});
}

void List(const TArguments&) {
  const auto names = InstalledProviders();
  const auto others = InstalledProviders(TRegRoot::LocalMachineOtherBits);
  if (names.empty() && others.empty()) std::cout << sNoProviders.str();
  for (const auto& name : names) {
    const auto key = KeyOf(name);
    const auto library = ReadValue(key, kServerPath);
    const auto path = ProviderPath(library);
    std::cout << Format(sProviderLine, {IsDefault(key) ? "*" : " ", name, path})
              << (FileExists(library) && FileExists(path) ? "" : sNoSuchFile.Text)
              << (path != library ? sInOwnProcess.Text : "")
              << (ReadValue(key, kSearchPath) == "1" ? sInPath.Text : "") << '\n';
  }
  constexpr int kOtherBits = sizeof(void*) == 8 ? 32 : 64;
  for (const auto& name : others)
    if (const auto path = PathForOtherBits(name); !path.empty())
      std::cout << Format(sProviderLine, {" ", name, path}) << Format(sForOtherBits, {kOtherBits}) << '\n';
}

// --------------------------------------------------------------------------------------------- command line

/// Adds the commands to `parser`. Parsing fills in `arguments` and sets `command` to the chosen function.
void AddCommands(CLI::App& parser, TArguments& arguments, void (*&command)(const TArguments&)) {
  const auto add = [&](const char* name, const TResString& help, void (*run)(const TArguments&)) {
    auto* const added = parser.add_subcommand(name, help);
    added->group(sCommands);
    added->callback([&command, run] { command = run; });
    if (run != List) added->add_option("NAME", arguments.Name, sNameHelp)->required();
    return added;
  };
  auto* const install = add("add", sAddHelp, Add);
  install->add_option("PATH", arguments.Path, sPathHelp)->required();
  install->add_flag("--default", arguments.Default, sDefaultHelp);
  install->add_flag("--force", arguments.Force, sForceHelp);
  install->add_flag("--search-path", arguments.SearchPath, sSearchPathHelp);
  install->add_flag("--isolated", arguments.Isolated, sIsolatedHelp);
  install->add_flag("--if-none", arguments.IfNone, sIfNoneHelp);
  add("remove", sRemoveHelp, Remove);
  add("default", sMakeDefaultHelp, MakeDefault);
  add("isolate", sIsolateHelp, MakeIsolated);
  add("direct", sDirectHelp, MakeDirect);
  add("list", sListHelp, List);
}

}  // namespace

int main(int argc, char** argv) {
  PrepareConsole();
  const auto words = CommandLineArguments(argc, argv);
  TArguments arguments;
  void (*command)(const TArguments&) = nullptr;
  CLI::App parser(sDescription, "scc-register");
  parser.allow_windows_style_options(false);  // paths may begin with a slash
  parser.set_help_flag();
  parser.set_help_all_flag("-h,--help", sHelpHelp);
  parser.require_subcommand(0, 1);
  for (const auto& [label, shown] : kHelpLabels) parser.get_formatter()->label(label, shown);
  parser.footer(sFooter);
  parser.failure_message([](const CLI::App*, const CLI::Error& error) {
    return Format(sMessage, {error.what()}) + sSeeHelp.str();
  });
  AddCommands(parser, arguments, command);
  try {
    parser.parse(std::vector<std::string>(words.rbegin(), words.rend()));
    if (!command) throw CLI::RequiredError(sCommand);
    command(arguments);
    return 0;
  } catch (const CLI::Error& error) {
    return parser.exit(error) == 0 ? 0 : kExitUsage;
  } catch (const std::exception& error) {
    std::cerr << Format(sMessage, {error.what()});
    return kExitFailed;
  }
}
