// The provider's own windows, and its say in the file lists of the commands.
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "expert/Edits.h"
#include "expert/SccExpert.h"
#include "expert/SccExpertStrings.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "host/Paths.h"

TSCCProviderProject& TSccExpert::RequireCurrentProject() {
  const auto project = Trim(GetCurrentProjectFile());
  if (project.empty()) throw EAbort(sNoProjectFile);
  return RequireProject(ExtractFileDir(project), sNoMatchingPath);
}

void TSccExpert::ShowDiff(const std::string& fileName) {
  RequireCurrentProject();
  SaveEdits(*this, fileName);
  TStateMessages messages;
  // Differences in case only are none to the compilers of this IDE, so the window opens without them.
  RequireCurrentProject().ShowDiff(fileName, scc::SCC_DIFF_IGNORECASE, messages);
  DisplayMessages(sShowDiff, messages);
}

void TSccExpert::ShowHistory(const std::string& fileName) {
  RequireCurrentProject();
  SaveEdits(*this, fileName);  // the provider may put an earlier revision in the file's place
  TStateMessages messages;
  if (RequireCurrentProject().ShowHistory(fileName, messages) == scc::SCC_I_RELOADFILE) ReloadFile(fileName);
  DisplayMessages(sShowHistory, messages);
}

void TSccExpert::Properties(const std::string& fileName) {
  RequireCurrentProject();
  SaveEdits(*this, fileName);
  TStateMessages messages;
  RequireCurrentProject().Properties(fileName, messages);
  DisplayMessages(sProperties, messages);
}

namespace {

/// A provider project, the current one, for as long as the provider's application runs.
class TTemporaryProject {
 public:
  /// `list` is the expert's, and stays for as long as one of its functions runs.
  TTemporaryProject(TSCCProviderList& list, const std::string& directory)
      : list_(list), directory_(directory) {
    list_.Add(directory_);
    if (!list_.SetCurrentProject(directory_)) throw EAbort(sNoProjectFile);
  }
  TTemporaryProject(const TTemporaryProject&) = delete;
  TTemporaryProject& operator=(const TTemporaryProject&) = delete;
  ~TTemporaryProject() {
    list_.Remove(directory_);
    list_.SetCurrentProject(directory_);  // drops the reference to the one removed
  }

 private:
  TSCCProviderList& list_;
  const std::string directory_;
};

}  // namespace

void TSccExpert::RunSccApp() {
  if (!provider_list_ && !ProviderCreate(0)) return;
  std::optional<TTemporaryProject> temporary;
  const auto project = GetCurrentProjectFile();
  if (!project.empty() && provider_list_->GetCount() > 0 && provider_list_->CurrentProject()) {
    RequireCurrentProject();
  } else {
    auto* services = IdeService<IOTAServices>();
    temporary.emplace(*provider_list_, services ? services->GetStartupDirectory() : std::string());
  }
  auto& session = *provider_list_->CurrentProject();
  session.set_UserName(user_name_);
  // What there is to say the provider says itself; its code counts for nothing here.
  session.RunSCC();
}

namespace {

// What the provider said in one population; only one runs at a time.
TStringList addList;
TStringList removeList;

scc::Bool SCC_CALL PopListFunc(void*, scc::Bool addKeep, scc::Long, const char* fileName) noexcept {
  return TakeFileName(fileName, addKeep ? addList : removeList) ? -1 : 0;
}

/// Deletes from `list`, for each of `names`, the first entry that matches it.
void DeleteFirstMatches(TStringList& list, const TStringList& names) {
  std::unordered_map<std::string, int> due;
  for (const auto& name : names) ++due[FoldCase(name)];
  if (due.empty()) return;
  std::erase_if(list, [&](const std::string& entry) {
    const auto found = due.find(FoldCase(entry));
    return found != due.end() && found->second-- > 0;
  });
}

/// Appends, in order, the entries of `names` that are not blank and not yet in `list`.
void AppendMissing(TStringList& list, const TStringList& names) {
  std::unordered_set<std::string> known;
  known.reserve(list.size() + names.size());
  for (const auto& entry : list) known.insert(FoldCase(entry));
  for (const auto& name : names)
    if (!Trim(name).empty() && known.insert(FoldCase(name)).second) list.push_back(name);
}

}  // namespace

void TSccExpert::ProviderAddRemove(TStringList& list, scc::SCCCommand command) {
  if (!provider_list_) throw EAbort(sAddRemoveNoProvider);
  addList.clear();
  removeList.clear();
  TStringList working;
  rv_EnumProjectUnits(&working);
  if (provider_list_->Capabilities().test(pcSccPopulateList)) {
    TStateMessages messages;
    TStatusArray statuses;
    auto* project =
        provider_list_->CurrentProject();  // of the host's project, or of the one that is being pulled
    if (!project) throw EAbort(sNoMatchingPath);
    project->PopulateList(command, working, PopListFunc, statuses, messages);
    DisplayMessages(sSccPopulateList, messages);
  }
  DeleteFirstMatches(working, removeList);
  AppendMissing(working, addList);
  AppendMissing(list, working);
}

void TSccExpert::ViewChange(const std::string& fileName) {
  // Commands open views, too; what they do is not interrupted for a line in the message window.
  if (activities_.Ask(TActivity::Command) != TActivities::TVerdict::Start) return;
  RunCommand(sViewChangeError.Text, [&] {
    if (!provider_list_) return;
    if (!provider_list_->SetCurrentProject(ExtractFileDir(GetCurrentProjectFile()))) return;
    TStatusArray statuses;
    TStateMessages messages;
    if (provider_list_->CurrentProject()->Query({fileName}, statuses, messages))
      DecodeQueryStatus(fileName, statuses[0]);
  });
}
