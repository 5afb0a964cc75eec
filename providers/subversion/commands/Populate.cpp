#include "subversion/commands/Populate.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace kestrel::svnscc {
namespace {

constexpr scc::Long kOutHere =
    scc::SCC_STATUS_CONTROLLED | scc::SCC_STATUS_CHECKEDOUT | scc::SCC_STATUS_OUTBYUSER;
constexpr scc::Long kOut = scc::SCC_STATUS_OUTBYUSER | scc::SCC_STATUS_OUTOTHER;
constexpr scc::Long kLockedByOther = scc::SCC_STATUS_OUTOTHER | scc::SCC_STATUS_OUTEXCLUSIVE;

struct Row {
  scc::SCCCommand command;
  scc::Long required;     // all of these bits
  scc::Long forbidden;    // none of these
  scc::Long notTogether;  // not all of these
};

constexpr std::array kRows{
    Row{scc::SCC_COMMAND_CHECKOUT, scc::SCC_STATUS_CONTROLLED,
        scc::SCC_STATUS_OUTBYUSER | scc::SCC_STATUS_DELETED, kLockedByOther},
    Row{scc::SCC_COMMAND_CHECKIN, kOutHere, 0, 0},
    Row{scc::SCC_COMMAND_UNCHECKOUT, kOutHere, 0, 0},
    Row{scc::SCC_COMMAND_REMOVE, scc::SCC_STATUS_CONTROLLED, kOut | scc::SCC_STATUS_DELETED, 0},
};
constexpr Row kAnyControlled{scc::SCC_COMMAND_GET, scc::SCC_STATUS_CONTROLLED, 0, 0};

class Report {
 public:
  Report(scc::TPopListFunc callback, void* callerData) : callback_(callback), callerData_(callerData) {}
  // Both return false if the client wants no more.
  bool Include(const std::string& name, scc::Long bits) {
    return callback_(callerData_, 1, bits, name.c_str()) != 0;
  }
  bool Exclude(const char* name, scc::Long bits) { return callback_(callerData_, 0, bits, name) != 0; }

 private:
  scc::TPopListFunc callback_;
  void* callerData_;
};

/// Whether one of the folders contains `path` at any depth.  Climbs from `path`: there may be many folders.
bool IsBelowAny(const std::unordered_set<std::string>& folders, std::string path) {
  for (auto slash = path.rfind('/'); slash != std::string::npos && slash > 0; slash = path.rfind('/')) {
    path.resize(slash);
    if (folders.contains(path)) return true;
  }
  return false;
}

bool ExcludeUnfit(scc::SCCCommand command, Names names, const std::vector<FileStatus>& found,
                  Report& report) {
  for (std::size_t i = 0; i < names.size(); ++i)
    if (names[i] != nullptr && !Fits(command, found[i].Bits) && !report.Exclude(names[i], found[i].Bits))
      return false;
  return true;
}

}  // namespace

bool Fits(scc::SCCCommand command, scc::Long bits) {
  if (command == scc::SCC_COMMAND_ADD) return bits == 0 || (bits & scc::SCC_STATUS_DELETED) != 0;
  const auto row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return r.command == command; });
  const Row& rule = row != kRows.end() ? *row : kAnyControlled;
  const bool together = rule.notTogether != 0 && (bits & rule.notTogether) == rule.notTogether;
  return (bits & rule.required) == rule.required && (bits & rule.forbidden) == 0 && !together;
}

scc::Long Populate(ProviderContext& context, scc::SCCCommand command, Names names, Named named,
                   scc::TPopListFunc callback, void* callerData, scc::Long* statuses) {
  const StatusTable& table = WalkProject(context, Answer::MayBeRecent);
  std::vector<std::string> paths;
  std::vector<FileStatus> found;
  for (std::size_t i = 0; i < names.size(); ++i) {
    paths.push_back(context.InsidePath(names[i]));
    found.push_back(table.Of(paths.back()));
    if (statuses != nullptr) statuses[i] = found.back().Bits;
  }
  if (callback == nullptr) return table.Result;

  Report report(callback, callerData);
  if (named == Named::Folders && names.empty()) paths.push_back(context.CurrentProject().Folder);
  if (named == Named::Files && !ExcludeUnfit(command, names, found, report)) return table.Result;
  if (command == scc::SCC_COMMAND_ADD) return table.Result;  // the client knows which files can be added

  paths.erase(std::remove(paths.begin(), paths.end(), std::string()), paths.end());
  const std::unordered_set<std::string> listed(paths.begin(), paths.end());
  for (const auto& file : table.Files()) {
    const scc::Long bits = table.Of(file).Bits;
    const bool wanted = named == Named::Folders ? IsBelowAny(listed, file) : !listed.contains(file);
    if (wanted && Fits(command, bits) && !report.Include(NativeName(file), bits)) break;
  }
  return table.Result;
}

}  // namespace kestrel::svnscc
