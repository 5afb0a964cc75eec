#include "expert/ProviderWindows.h"

#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "expert/Edits.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"

namespace kestrel::addin {

TSCCProviderProject& SelectHostProject(TCommandContext& context) {
  const auto project = Trim(GetCurrentProjectFile());
  if (project.empty()) throw EAbort(sNoProjectFile);
  context.Activities.RunWaiting();
  return context.Provider.SelectProject(ExtractFileDir(project), sNoMatchingPath);
}

namespace {

/// Saves the file, then calls the provider for it.
void ShowWindow(TCommandContext& context, const std::string& fileName, const TResString& title,
                const auto& call) {
  SelectHostProject(context);
  SaveEdits(fileName);
  TStateMessages messages;
  call(SelectHostProject(context), messages);
  context.Log.DisplayMessages(title, messages);
}

}  // namespace

void ShowDiff(TCommandContext& context, const std::string& fileName) {
  ShowWindow(context, fileName, sShowDiff, [&](auto& project, auto& messages) {
    // The compilers of this IDE ignore case, so the differences shown do too.
    project.ShowDiff(fileName, scc::SCC_DIFF_IGNORECASE, messages);
  });
}

void ShowHistory(TCommandContext& context, const std::string& fileName) {
  ShowWindow(context, fileName, sShowHistory, [&](auto& project, auto& messages) {
    if (project.ShowHistory(fileName, messages) == scc::SCC_I_RELOADFILE) ReloadFile(fileName);
  });
}

void ShowProperties(TCommandContext& context, const std::string& fileName) {
  ShowWindow(context, fileName, sProperties,
             [&](auto& project, auto& messages) { project.Properties(fileName, messages); });
}

namespace {

/// Scoped provider project, current while the provider's application runs.
class TTemporaryProject {
 public:
  /// `list` is borrowed; it is not freed while one of the provider's functions runs.
  TTemporaryProject(TSCCProviderList& list, const std::string& directory)
      : list_(list), directory_(directory) {
    list_.Add(directory_);
    if (!list_.SetCurrentProject(directory_)) throw EAbort(sNoProjectFile);
  }
  TTemporaryProject(const TTemporaryProject&) = delete;
  TTemporaryProject& operator=(const TTemporaryProject&) = delete;
  ~TTemporaryProject() {
    list_.Remove(directory_);
    list_.SetCurrentProject(directory_);  // the current project must not dangle
  }

 private:
  TSCCProviderList& list_;
  const std::string directory_;
};

}  // namespace

void RunProviderApplication(TCommandContext& context) {
  auto& provider = context.Provider;
  if (!provider.List() && !provider.Create(0)) return;
  std::optional<TTemporaryProject> temporary;
  if (!GetCurrentProjectFile().empty() && provider.CurrentProject()) {
    SelectHostProject(context);
  } else {
    auto* services = IdeService<IOTAServices>();
    temporary.emplace(*provider.List(), services ? services->GetStartupDirectory() : std::string());
  }
  auto& project = *provider.CurrentProject();
  project.set_UserName(provider.UserName());
  project.RunSCC();  // the provider reports failures itself
}

namespace {

// Filled by one population; only one runs at a time.
TStringList addList;
TStringList removeList;

scc::Bool SCC_CALL PopListFunc(void*, scc::Bool addKeep, scc::Long, const char* fileName) noexcept {
  return AppendPopulatedName(fileName, addKeep ? addList : removeList) ? -1 : 0;
}

/// Removes, for each of `names`, its first match from `list`.
void DeleteFirstMatches(TStringList& list, const TStringList& names) {
  std::unordered_map<std::string, int> due;
  for (const auto& name : names) ++due[FoldCase(name)];
  if (due.empty()) return;
  std::erase_if(list, [&](const std::string& entry) {
    const auto found = due.find(FoldCase(entry));
    return found != due.end() && found->second-- > 0;
  });
}

/// Appends the `names` that are neither blank nor in `list`, in order.
void AppendMissing(TStringList& list, const TStringList& names) {
  std::unordered_set<std::string> known;
  known.reserve(list.size() + names.size());
  for (const auto& entry : list) known.insert(FoldCase(entry));
  for (const auto& name : names)
    if (!Trim(name).empty() && known.insert(FoldCase(name)).second) list.push_back(name);
}

}  // namespace

void ProviderAddRemove(TCommandContext& context, TStringList& list, scc::SCCCommand command) {
  const auto& provider = context.Provider.RequireList(sAddRemoveNoProvider);
  addList.clear();
  removeList.clear();
  TStringList working;
  rv_EnumProjectUnits(&working);
  if (provider.Capabilities().test(pcSccPopulateList)) {
    TStateMessages messages;
    TStatusArray statuses;
    auto* project = provider.CurrentProject();  // the host's, or the one that is being pulled
    if (!project) throw EAbort(sNoMatchingPath);
    project->PopulateList(command, working, PopListFunc, statuses, messages);
    context.Log.DisplayMessages(sSccPopulateList, messages);
  }
  DeleteFirstMatches(working, removeList);
  AppendMissing(working, addList);
  AppendMissing(list, working);
}

void ShowStatus(const TCommandContext& context, const std::string& fileName) {
  auto* provider = context.Provider.List();
  if (!provider || !provider->SetCurrentProject(ExtractFileDir(GetCurrentProjectFile()))) return;
  TStatusArray statuses;
  TStateMessages messages;
  if (provider->CurrentProject()->Query({fileName}, statuses, messages))
    DecodeQueryStatus(fileName, statuses[0]);
}

}  // namespace kestrel::addin
