#include "host/Registry.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

#include "host/Paths.h"
#include "host/Text.h"
#include "host/posix/RegistryStore.h"

namespace {

constexpr const char* kMachineDirectory = "/etc/corvane";

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string HomeDirectory() {
  const auto home = Environment("HOME");
  if (!home.empty()) return home;
  const passwd* user = getpwuid(getuid());
  return user ? user->pw_dir : "/";
}

/// The user's directory of the store.  A relative XDG_CONFIG_HOME does not count, as the convention has it.
std::string UserDirectory() {
  const auto config = Environment("XDG_CONFIG_HOME");
  const auto base =
      IsAbsolutePath(config) ? config : IncludeTrailingPathDelimiter(HomeDirectory()) + ".config";
  return IncludeTrailingPathDelimiter(base) + "corvane";
}

/// The files that make up a root, first found first; the first one is written.
std::vector<std::string> FilesOf(TRegRoot root) {
  const std::string name = root == TRegRoot::LocalMachine ? "local-machine.ini" : "current-user.ini";
  const auto only = Environment("CORVANE_REGISTRY_DIR");
  if (!only.empty()) return {IncludeTrailingPathDelimiter(only) + name};
  std::vector<std::string> files{IncludeTrailingPathDelimiter(UserDirectory()) + name};
  if (root == TRegRoot::LocalMachine) files.push_back(IncludeTrailingPathDelimiter(kMachineDirectory) + name);
  return files;
}

}  // namespace

// Nothing is kept between calls: whatever another program writes is seen by the next call.
struct TRegistry::TImpl {
  enum class TAccess { None, Read, Write };

  std::vector<std::string> Files;
  std::string Key;
  TAccess Access = TAccess::None;

  void RequireWritable() const {
    if (Access != TAccess::Write)
      throw std::runtime_error("The registry key is not open for writing: " + Key);
  }
};

TRegistry::TRegistry(TRegRoot root) : impl_(std::make_unique<TImpl>()) { impl_->Files = FilesOf(root); }
TRegistry::~TRegistry() = default;

bool TRegistry::OpenKeyReadOnly(const std::string& key) {
  CloseKey();
  const auto has = [&](const std::string& file) { return TRegistryStore::Read(file).HasKey(key); };
  if (std::none_of(impl_->Files.begin(), impl_->Files.end(), has)) return false;
  impl_->Key = key;
  impl_->Access = TImpl::TAccess::Read;
  return true;
}

void TRegistry::OpenKey(const std::string& key) {
  impl_->Key = key;
  impl_->Access = TImpl::TAccess::Write;
}

void TRegistry::CloseKey() {
  impl_->Key.clear();
  impl_->Access = TImpl::TAccess::None;
}

std::string TRegistry::ReadString(const std::string& name) const {
  if (impl_->Access == TImpl::TAccess::None) return {};
  for (const auto& file : impl_->Files)
    if (const auto value = TRegistryStore::Read(file).Value(impl_->Key, name)) return *value;
  return {};
}

std::vector<std::string> TRegistry::GetValueNames() const {
  std::vector<std::string> names;
  if (impl_->Access == TImpl::TAccess::None) return names;
  for (const auto& file : impl_->Files)
    for (auto& name : TRegistryStore::Read(file).ValueNames(impl_->Key)) {
      const auto same = [&](const std::string& known) { return SameText(known, name); };
      if (std::none_of(names.begin(), names.end(), same)) names.push_back(std::move(name));
    }
  return names;
}

void TRegistry::WriteString(const std::string& name, const std::string& value) {
  impl_->RequireWritable();
  TRegistryStore::Update(impl_->Files.front(), [&](TRegistryStore& store) {
    if (store.Value(impl_->Key, name) == value) return false;
    store.SetValue(impl_->Key, name, value);
    return true;
  });
}

bool TRegistry::DeleteValue(const std::string& name) {
  impl_->RequireWritable();
  return TRegistryStore::Update(impl_->Files.front(),
                                [&](TRegistryStore& store) { return store.DeleteValue(impl_->Key, name); });
}

bool TRegistry::DeleteKey(const std::string& key) {
  return TRegistryStore::Update(impl_->Files.front(),
                                [&](TRegistryStore& store) { return store.DeleteKey(key); });
}
