// A mapped project of many files, open on a provider that answers at once: what benchmarks of the commands work on.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "expert/SccExpert.h"
#include "provider/sccapi.h"
#include "support/Environment.h"
#include "support/ScriptedForms.h"
#include "support/ScriptedHost.h"
#include "support/ScriptedProvider.h"
#include "support/TemporaryFolder.h"
#include "system/Registry.h"

namespace kestrel::addin {

using TClock = std::chrono::steady_clock;

/// How long `work` takes.
template <class TWork>
double Milliseconds(TWork&& work) {
  const auto start = TClock::now();
  work();
  return std::chrono::duration<double, std::milli>(TClock::now() - start).count();
}

/// An empty file, quickly: TTemporaryFolder::Write would wait for the disk.
inline std::string MakeFile(const std::string& path) {
  const auto folder = std::filesystem::path(path).parent_path();
  if (!std::filesystem::exists(folder)) std::filesystem::create_directories(folder);
  if (!std::ofstream(path)) throw std::runtime_error(path + " cannot be made");
  return path;
}

class TBigProject {
 public:
  /// Exactly `files` files, companions included.  Without `onDisk` only the project file exists.
  TBigProject(std::size_t files, bool onDisk) {
    Provider->Record = false;
    Forms.Recording = false;
    InstallProvider();
    const auto project = folder_.Write("work/App.qvxproj", "");
    folder_.Write("work/App.cdp", "[Scripted]\nProjName=trunk\n");
    const std::size_t projectFiles = 1 + (onDisk ? 0 : PRJ_EXTENSIONS.size());
    std::vector<std::string> modules;
    for (std::size_t i = 0; i + projectFiles < files; ++i) {  // include files have no companions
      const auto file = folder_ / ("work/source folder " + std::to_string(i / 256) + "/include file " +
                                   std::to_string(i) + ".inc");
      modules.push_back(onDisk ? MakeFile(file) : file);
    }
    Host.AddProject(project, std::move(modules));
    expert_ = std::make_unique<TSccExpert>(Forms);
    Host.Notify(TOTAFileNotification::fnFileOpened, project);
    if (!expert_->ProviderList()) throw std::runtime_error("the project did not open");
    expert_->AddAssociatedFiles(&all_, onDisk);
    for (const auto& file : all_) names_.push_back(file.c_str());
  }

  TSccExpert& Expert() { return *expert_; }
  const TStringList& Files() const { return all_; }
  /// What a bare call of the provider takes.
  std::vector<const char*>& Names() { return names_; }
  scc::Long Count() const { return static_cast<scc::Long>(names_.size()); }
  std::string Directory() const { return folder_ / "work"; }
  // The scripted provider gives every client the same context.
  void* Context() { return &*Provider; }

 private:
  void InstallProvider() {
    TRegistry registry;
    registry.OpenKey("Software\\Scripted");
    registry.WriteString(kServerPath, ScriptedProviderLibrary::Path());
    registry.OpenKey(kInstalledProvidersKey);
    registry.WriteString("Scripted", "Software\\Scripted");
    registry.OpenKey(kProviderKey);
    registry.WriteString(kProviderRegKey, "Software\\Scripted");
  }

  TTemporaryFolder folder_;
  TEnvironmentVariable registry_{"CORVANE_REGISTRY_DIR", folder_.MakeFolder("registry").c_str()};

 public:
  ScriptedProviderLibrary Provider;
  TScriptedHost Host;
  TScriptedForms Forms;

 private:
  std::unique_ptr<TSccExpert> expert_;
  TStringList all_;
  std::vector<const char*> names_;
};

/// The counters of a run: the bare calls, the ratio to them, and the growth against the size before (8 times fewer).
/// `measured` is kept from size to size; the last of the calibration runs stays.
inline void Report(auto& state, TBigProject& project, double whole, double bare,
                   std::map<std::int64_t, double>& measured) {
  measured[state.range(0)] = whole;
  state.counters["files"] = static_cast<double>(project.Files().size());
  state.counters["bare_ms"] = bare;
  state.counters["ratio"] = whole / bare;
  if (const auto smaller = measured.find(state.range(0) / 8); smaller != measured.end())
    state.counters["growth"] = whole / smaller->second;
}

}  // namespace kestrel::addin
