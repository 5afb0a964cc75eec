#include <algorithm>

#include "provider/sccapiintf.h"
#include "system/Paths.h"
#include "system/Registry.h"

namespace kestrel::addin {

namespace {
// Differs from kServerPath in case, as in other programs; the registry ignores case.
constexpr const char* kDefaultServerPath = "SCCServerPath";
}  // namespace

bool SCCProviderInstalled() {
  TRegistry registry;
  return registry.OpenKeyReadOnly(kInstalledProvidersKey) && !registry.GetValueNames().empty();
}

void GetDefaultProvider(std::string& name, std::string& path) {
  TRegistry registry;
  // Failures are not checked: a missing key reads as an empty string.
  registry.OpenKeyReadOnly(kProviderKey);
  const std::string providerKey = registry.ReadString(kProviderRegKey);
  registry.OpenKeyReadOnly(providerKey);
  name = registry.ReadString(kServerName);
  path = registry.ReadString(kDefaultServerPath);
}

bool SearchesPath(const std::string& libraryPath) {
  TRegistry installed;
  if (!installed.OpenKeyReadOnly(kInstalledProvidersKey)) return false;
  return std::ranges::any_of(installed.GetValueNames(), [&](const std::string& name) {
    TRegistry provider;
    return provider.OpenKeyReadOnly(installed.ReadString(name)) &&
           SameFileName(provider.ReadString(kServerPath), libraryPath) &&
           provider.ReadString(kSearchPath) == "1";
  });
}

}  // namespace kestrel::addin
