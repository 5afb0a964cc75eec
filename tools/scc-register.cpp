// scc-register: installs, removes and lists the machine's source control providers.
#include <algorithm>
#include <iostream>
#include <set>
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

/// A command that cannot be done as it was asked for; its text is a sentence.
struct EFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};
/// A command line that means nothing.
struct EUsage : std::runtime_error {
  using std::runtime_error::runtime_error;
};

constexpr const char* kDefaultOption = "--default";
constexpr const char* kForceOption = "--force";
constexpr const char* kSearchPathOption = "--search-path";
constexpr const char* kIsolatedOption = "--isolated";
constexpr const char* kEntryPoint = "SccInitialize";

struct TCommandLine {
  std::vector<std::string> Words;  ///< the command and its arguments
  std::set<std::string> Options;
};

// ------------------------------------------------------------------------------------------------- registry

std::string ReadValue(const std::string& key, const std::string& name) {
  TRegistry registry;
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

std::vector<std::string> InstalledProviders() {
  TRegistry registry;
  return registry.OpenKeyReadOnly(kInstalledProvidersKey) ? registry.GetValueNames()
                                                          : std::vector<std::string>();
}

/// The key that this program makes for a provider; an installer of its own may have chosen another.
std::string OwnKey(const std::string& name) { return "Software\\" + name + "\\SCC"; }

bool IsInstalled(const std::string& name) {
  const auto names = InstalledProviders();
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& installed) { return SameText(installed, name); });
}

/// The key of an installed provider; empty when none of that name is, or its entry names no key.
std::string KeyOf(const std::string& name) { return ReadValue(kInstalledProvidersKey, name); }

void RequireInstalled(const std::string& name) {
  if (!IsInstalled(name)) throw EFailure(Format(sNotInstalled, {name}));
}

/// Throws EFailure for a provider that has no key.
std::string InstalledKeyOf(const std::string& name) {
  RequireInstalled(name);
  const auto key = KeyOf(name);
  if (key.empty()) throw EFailure(Format(sNoKey, {name}));
  return key;
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

void Choose(const std::string& name) {
  WriteValue(kProviderKey, kProviderRegKey, InstalledKeyOf(name));
  std::cout << Format(sIsDefault, {name});
}

void Add(const TCommandLine& line) {
  const auto& name = line.Words[1];
  const auto& path = line.Words[2];
  CheckName(name);
  if (!IsAbsolutePath(path)) throw EFailure(Format(sPathNotAbsolute, {path}));
  const bool searchesPath = line.Options.contains(kSearchPathOption);
  if (!line.Options.contains(kForceOption))
    CheckLibrary(path, searchesPath ? TDependencySearch::OwnFolderPath : TDependencySearch::OwnFolder);

  const bool isFirst = InstalledProviders().empty();
  const auto known = KeyOf(name);
  const auto key = known.empty() ? OwnKey(name) : known;
  // The list comes last: whoever reads it meanwhile finds complete entries only.
  WriteValue(key, kServerName, name);
  WriteValue(key, kServerPath,
             line.Options.contains(kIsolatedOption) ? InstallProxyLibrary(name, path) : path);
  if (searchesPath)
    WriteValue(key, kSearchPath, "1");
  else
    DeleteValue(key, kSearchPath);
  WriteValue(kInstalledProvidersKey, name, key);
  std::cout << Format(sAdded, {name});
  if (isFirst || line.Options.contains(kDefaultOption)) Choose(name);
}

void Remove(const TCommandLine& line) {
  const auto& name = line.Words[1];
  RequireInstalled(name);
  const auto key = KeyOf(name);
  const bool wasDefault = IsDefault(key);
  DeleteValue(kInstalledProvidersKey, name);
  if (SameText(key, OwnKey(name))) {
    TRegistry().DeleteKey(key);
  } else if (!key.empty()) {
    // A key that its own installer made may hold more than what this program knows about.
    for (const char* value : {kServerName, kServerPath, kSearchPath}) DeleteValue(key, value);
  }
  if (IsInstalled(name)) throw EFailure(Format(sInstalledForAll, {name}));
  RemoveProxyLibrary(name);
  if (wasDefault) DeleteValue(kProviderKey, kProviderRegKey);
  std::cout << Format(sRemoved, {name});
  if (wasDefault && !InstalledProviders().empty()) std::cout << sNoDefault.str();
}

void MakeDefault(const TCommandLine& line) { Choose(line.Words[1]); }

/// Path of the provider itself, if `path` is that of its isolating library.
std::string ProviderPath(const std::string& path) {
  const auto isolated = ProviderBehindProxy(path);
  return isolated.empty() ? path : NormalizePath(isolated);
}

/// For a provider that is isolated already this updates its library, e.g. after an update of this program.
void MakeIsolated(const TCommandLine& line) {
  const auto& name = line.Words[1];
  const auto key = InstalledKeyOf(name);
  WriteValue(key, kServerPath, InstallProxyLibrary(name, ProviderPath(ReadValue(key, kServerPath))));
  std::cout << Format(sIsIsolated, {name});
}

void MakeDirect(const TCommandLine& line) {
  const auto& name = line.Words[1];
  const auto key = InstalledKeyOf(name);
  WriteValue(key, kServerPath, ProviderPath(ReadValue(key, kServerPath)));
  RemoveProxyLibrary(name);
  std::cout << Format(sIsDirect, {name});
}

void List(const TCommandLine&) {
  const auto names = InstalledProviders();
  if (names.empty()) std::cout << sNoProviders.str();
  for (const auto& name : names) {
    const auto key = KeyOf(name);
    const auto library = ReadValue(key, kServerPath);
    const auto path = ProviderPath(library);
    std::cout << Format(sProviderLine, {IsDefault(key) ? "*" : " ", name, path})
              << (FileExists(library) && FileExists(path) ? "" : sNoSuchFile.Text)
              << (path != library ? sInOwnProcess.Text : "")
              << (ReadValue(key, kSearchPath) == "1" ? sInPath.Text : "") << '\n';
  }
}

// --------------------------------------------------------------------------------------------- command line

struct TCommand {
  const char* Name;
  std::size_t Arguments;
  std::set<std::string> Options;
  void (*Run)(const TCommandLine&);
};

const TCommand kCommands[] = {
    {"add", 2, {kDefaultOption, kForceOption, kSearchPathOption, kIsolatedOption}, Add},
    {"remove", 1, {}, Remove},
    {"default", 1, {}, MakeDefault},
    {"isolate", 1, {}, MakeIsolated},
    {"direct", 1, {}, MakeDirect},
    {"list", 0, {}, List},
};

const std::set<std::string> kHelpOptions{"--help", "-h"};

TCommandLine Parse(const std::vector<std::string>& arguments) {
  TCommandLine line;
  bool optionsEnded = false;
  for (const auto& argument : arguments) {
    if (optionsEnded || argument.size() < 2 || argument.front() != '-')
      line.Words.push_back(argument);
    else if (argument == "--")
      optionsEnded = true;
    else
      line.Options.insert(argument);
  }
  return line;
}

const TCommand& CommandOf(const TCommandLine& line) {
  if (line.Words.empty())
    throw EUsage(line.Options.empty() ? "" : Format(sUnknownOption, {*line.Options.begin()}));
  const auto& word = line.Words.front();
  const auto command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                    [&](const TCommand& c) { return c.Name == word; });
  if (command == std::end(kCommands)) throw EUsage(Format(sUnknownCommand, {word}));
  for (const auto& option : line.Options)
    if (!command->Options.contains(option)) throw EUsage(Format(sOptionNotForCommand, {word, option}));
  if (line.Words.size() != command->Arguments + 1) throw EUsage(Format(sWrongArguments, {word}));
  return *command;
}

void Run(const TCommandLine& line) {
  const auto asksForHelp = [](const std::string& option) { return kHelpOptions.contains(option); };
  if (std::any_of(line.Options.begin(), line.Options.end(), asksForHelp))
    std::cout << sUsage.str() << '\n' << sHelp.str();
  else
    CommandOf(line).Run(line);
}

}  // namespace

int main(int argc, char** argv) {
  PrepareConsole();
  try {
    Run(Parse(CommandLineArguments(argc, argv)));
    return 0;
  } catch (const EUsage& error) {
    if (*error.what()) std::cerr << Format(sMessage, {error.what()});
    std::cerr << sUsage.str();
    return 2;
  } catch (const std::exception& error) {
    std::cerr << Format(sMessage, {error.what()});
    return 1;
  }
}
