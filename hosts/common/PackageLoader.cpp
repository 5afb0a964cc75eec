#include "hosts/common/PackageLoader.h"

#include <bit>
#include <ranges>

#include "host/PackageVersion.h"
#include "host/Services.h"
#include "hosts/common/PackageStrings.h"
#include "system/Paths.h"
#include "system/System.h"

namespace kestrel {

namespace {

TPackageEntry Entry(TModuleHandle module, const char* name) {
  return std::bit_cast<TPackageEntry>(FindSymbol(module, name));
}

}  // namespace

bool TPackageLoader::Load(const std::string& path) {
  const std::string full = FullPath(path);
  if (!FileExists(full)) {
    caller_.Log(Format(sPackageNotFound, {full}));
    return false;
  }
  std::string error;
  TModuleHandle module = LoadModule(full, &error);
  if (!module) {
    caller_.Log(Format(sPackageNotLoaded, {full, error}));
    return false;
  }
  for (const char* name : {kPackageInitialize, kPackageRegister, kPackageFinalize})
    if (!FindSymbol(module, name)) {
      caller_.Log(Format(sPackageNoEntry, {full, name}));
      UnloadModule(module);
      return false;
    }
  packages_.push_back({full, module});
  caller_.Run(full, [&] {
    Entry(module, kPackageInitialize)();
    Entry(module, kPackageRegister)();
  });
  return true;
}

std::string TPackageLoader::Describe() const {
  std::string lines;
  for (const TPackage& package : packages_) {
    const auto version = std::bit_cast<TPackageVersion>(FindSymbol(package.Module, kPackageVersion));
    lines += ExtractFileName(package.Path) + (version ? std::string(" ") + version() : std::string()) + "\n";
  }
  return lines;
}

void TPackageLoader::Finalize() {
  for (TPackage& package : std::views::reverse(packages_)) {
    if (std::exchange(package.Finalized, true)) continue;
    caller_.Run(package.Path, [&] { Entry(package.Module, kPackageFinalize)(); });
  }
}

void TPackageLoader::Unload() {
  Finalize();
  for (; !packages_.empty(); packages_.pop_back()) UnloadModule(packages_.back().Module);
}

}  // namespace kestrel
