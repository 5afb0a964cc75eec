#include "system/posix/RegistryLayers.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"

namespace kestrel {

namespace {

constexpr const char* kMachineDirectory = "/etc/corvane";

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string HomeDirectory() {
  auto home = Environment("HOME");
  if (!home.empty()) return home;
  const passwd* user = getpwuid(getuid());
  return user ? user->pw_dir : "/";
}

/// The user's directory for registry files.  A relative XDG_CONFIG_HOME is ignored, as the XDG rules demand.
std::string UserDirectory() {
  const auto config = Environment("XDG_CONFIG_HOME");
  const auto base =
      IsAbsolutePath(config) ? config : IncludeTrailingPathDelimiter(HomeDirectory()) + ".config";
  return IncludeTrailingPathDelimiter(base) + "corvane";
}

std::vector<std::string> DirectoriesOf(TRegRoot root) {
  if (root == TRegRoot::LocalMachineOtherBits) return {};
  const auto only = Environment("CORVANE_REGISTRY_DIR");
  if (!only.empty()) return {only};
  if (root == TRegRoot::CurrentUser) return {UserDirectory()};
  return {UserDirectory(), kMachineDirectory};
}

}  // namespace

std::string RegistryFolder() { return DirectoriesOf(TRegRoot::LocalMachine).front(); }

std::unique_ptr<IRegistryRoot> IRegistryRoot::Open(TRegRoot root) {
  auto files = DirectoriesOf(root);
  const auto name = root == TRegRoot::LocalMachine ? "local-machine.ini" : "current-user.ini";
  for (auto& file : files) file = IncludeTrailingPathDelimiter(file) + name;
  return std::make_unique<TRegistryLayers>(std::move(files));
}

bool TRegistryLayers::HasKey(const std::string& key) const {
  return std::any_of(files_.begin(), files_.end(),
                     [&](const std::string& file) { return TRegistryStore::Read(file).HasKey(key); });
}

std::optional<std::string> TRegistryLayers::Value(const std::string& key, const std::string& name) const {
  for (const auto& file : files_)
    if (auto value = TRegistryStore::Read(file).Value(key, name)) return value;
  return std::nullopt;
}

std::vector<std::string> TRegistryLayers::ValueNames(const std::string& key) const {
  std::vector<std::string> names;
  for (const auto& file : files_)
    for (auto& name : TRegistryStore::Read(file).ValueNames(key)) {
      const auto same = [&](const std::string& known) { return SameText(known, name); };
      if (std::none_of(names.begin(), names.end(), same)) names.push_back(std::move(name));
    }
  return names;
}

void TRegistryLayers::SetValue(const std::string& key, const std::string& name,
                               const std::string& value) const {
  TRegistryStore::Update(files_.front(),
                         [&](TRegistryStore& store) { return store.SetValue(key, name, value); });
}

bool TRegistryLayers::DeleteValue(const std::string& key, const std::string& name) const {
  return FileExists(files_.front()) && TRegistryStore::Update(files_.front(), [&](TRegistryStore& store) {
           return store.DeleteValue(key, name);
         });
}

bool TRegistryLayers::DeleteKey(const std::string& key) const {
  return FileExists(files_.front()) &&
         TRegistryStore::Update(files_.front(), [&](TRegistryStore& store) { return store.DeleteKey(key); });
}

}  // namespace kestrel
