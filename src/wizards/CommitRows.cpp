#include "wizards/CommitRows.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "expert/CallProgress.h"
#include "expert/CommandContext.h"
#include "expert/FileCommandStrings.h"
#include "expert/ProjectFiles.h"
#include "expert/SccSystem.h"
#include "system/Paths.h"
#include "system/System.h"
#include "wizards/CommitRowsStrings.h"
#include "wizards/FileSearch.h"

namespace kestrel::addin {

namespace {

constexpr std::array kActivityTexts{sNoActivity,  sActivityCommit, sActivityCheckOut, sActivityUndo,
                                    sActivityAdd, sActivityRemove, sActivityGetLatest};
static_assert(kActivityTexts.size() == kCommitActivities);

bool Has(scc::Long status, scc::Long bits) { return (status & bits) == bits; }

bool IsControlled(scc::Long status) {
  return status != scc::SCC_STATUS_INVALID && Has(status, scc::SCC_STATUS_CONTROLLED);
}

bool IsInvalid(scc::Long status) { return status == scc::SCC_STATUS_INVALID; }
bool IsAddable(scc::Long status) { return !IsControlled(status) || Has(status, scc::SCC_STATUS_DELETED); }
bool IsOutHere(scc::Long status) {
  return Has(status, scc::SCC_STATUS_CHECKEDOUT | scc::SCC_STATUS_OUTBYUSER);
}
bool IsOutOther(scc::Long status) { return Has(status, scc::SCC_STATUS_OUTOTHER); }
bool IsBehind(scc::Long status) {
  return (status & (scc::SCC_STATUS_MODIFIED | scc::SCC_STATUS_OUTOFDATE)) != 0;
}
bool IsAny(scc::Long) { return true; }

/// The first matching rule applies.
struct TRule {
  bool (*Matches)(scc::Long status);
  std::optional<bool> LocallyModified;  // empty: either
  TResString State;
  TCommitActivity Activity;
};
constexpr std::array kRules{
    TRule{IsInvalid, {}, sInvalidStatus, caNone},
    TRule{IsAddable, {}, sNotControlled, caAdd},
    TRule{IsOutHere, true, sCheckedOutModified, caCommit},
    TRule{IsOutHere, false, sCheckedOutUpToDate, caNone},
    TRule{IsOutOther, true, sOutOtherModified, caGetLatest},
    TRule{IsOutOther, false, sOutOtherUpToDate, caNone},
    TRule{IsBehind, {}, sModified, caGetLatest},
    TRule{IsAny, true, sModified, caGetLatest},
    TRule{IsAny, {}, sUpToDate, caNone},
};

/// Sorts by name ignoring case; of equal names the first stays.
void SortWithoutDuplicates(TStringList& names) {
  struct TEntry {
    std::string Key;
    std::string Name;
  };
  std::vector<TEntry> entries;
  entries.reserve(names.size());
  for (auto& name : names) entries.push_back({FoldCase(name), std::move(name)});
  std::ranges::stable_sort(entries, {}, &TEntry::Key);
  const auto repeated = std::ranges::unique(entries, {}, &TEntry::Key);
  entries.erase(repeated.begin(), repeated.end());
  names.clear();
  for (auto& entry : entries) names.push_back(std::move(entry.Name));
}

/// The target of OnPopulated() during a population; null otherwise.  Populations do not nest.
TStringList* populated = nullptr;

scc::Bool SCC_CALL OnPopulated(void*, scc::Bool, scc::Long status, const char* fileName) noexcept {
  constexpr scc::Bool kGoOn = -1;
  constexpr scc::Bool kStop = 0;
  const bool known = status != scc::SCC_STATUS_INVALID && status != scc::SCC_STATUS_NOTCONTROLLED;
  if (populated && !known) return kGoOn;
  return populated && AppendPopulatedName(fileName, *populated) ? kGoOn : kStop;
}

class TPopulateScope {
 public:
  TPopulateScope() { populated = &names_; }
  TPopulateScope(const TPopulateScope&) = delete;
  TPopulateScope& operator=(const TPopulateScope&) = delete;
  ~TPopulateScope() { populated = nullptr; }
  TStringList& Names() { return names_; }

 private:
  TStringList names_;
};

class TCommitRowCollector {
 public:
  explicit TCommitRowCollector(TCommandContext& context)
      : context_(context), directory_(ExtractFileDir(GetCurrentProjectFile())) {}

  std::vector<TCommitRowData> Rows() {
    Project();
    files_ = CurrentProjectFiles(/*onlyExisting*/ true);
    SortWithoutDuplicates(files_);
    Populate();
    Query();
    return Classified();
  }

 private:
  /// Looked up before each call, because the host may have closed the project.
  TSCCProviderProject& Project() {
    context_.Activities.RunWaiting();
    return context_.Provider.SelectProject(directory_, sCommitNoProvider);
  }

  TStringList Directories() const {
    TStringList directories;
    for (const auto& file : files_) {
      auto directory = IncludeTrailingPathDelimiter(ExtractFileDir(file));
      if (directories.empty() || directories.back() != directory) directories.push_back(std::move(directory));
    }
    SearchRecursiveDirectories(directories, directory_);
    SortWithoutDuplicates(directories);
    return directories;
  }

  TCallProgress Progress(const std::string& what) const {
    return {context_.Ui, sCommitBrowserCaption, TCallProgress::Kind::Status, what, files_};
  }

  void Populate() {
    TPopulateScope population;
    TStateMessages messages;
    const auto progress = Progress(sGatheringFiles);
    Project().PopulateDirectoriesList(scc::SCC_COMMAND_GET, Directories(), OnPopulated, statuses_, messages);
    std::ranges::move(population.Names(), std::back_inserter(files_));
    SortWithoutDuplicates(files_);
  }

  void Query() {
    if (files_.empty()) return;
    TStateMessages messages;
    const auto progress = Progress(sAskingStatus);
    // Without a status all files would look as if they were not controlled yet, so the failure has to be reported.
    if (!context_.Statuses.Query(Project(), files_, statuses_, messages))
      context_.Log.DisplayMessages(sCommitBrowserCaption, messages);
  }

  bool IsLocallyModified(const std::string& file) {
    TStateMessages messages;
    return !FileExists(file) || Project().SilentDiff(file, messages);
  }

  std::vector<TCommitRowData> Classified() {
    const auto progress = context_.Ui.StartProgress(sCommitBrowserCaption, files_.size());
    std::vector<TCommitRowData> rows;
    rows.reserve(files_.size());
    for (std::size_t i = 0; i < files_.size(); ++i) {
      progress->Step(i, files_[i]);
      const auto status = statuses_[i];
      // No rule depends on this for an uncontrolled file, which the provider could not compare anyway.
      const bool modified = IsControlled(status) && IsLocallyModified(files_[i]);
      rows.push_back(ClassifyCommitRow(status, modified));
      rows.back().FileName = files_[i];
    }
    return rows;
  }

  TCommandContext& context_;
  const std::string directory_;
  TStringList files_;
  TStatusArray statuses_;
};

}  // namespace

std::string ActivityToString(TCommitActivity activity) {
  return activity < kActivityTexts.size() ? kActivityTexts[activity] : sActivityError;
}

std::optional<TCommitActivity> NextActivityWith(char letter, TCommitActivity current) {
  for (int step = 1; step <= kCommitActivities; ++step) {
    const auto next = static_cast<TCommitActivity>((current + step) % kCommitActivities);
    if (SameText({&letter, 1}, ActivityToString(next).substr(0, 1))) return next;
  }
  return std::nullopt;
}

TCommitRowData ClassifyCommitRow(scc::Long status, bool locallyModified) {
  const auto rule = std::ranges::find_if(kRules, [&](const TRule& candidate) {
    return candidate.Matches(status) &&
           candidate.LocallyModified.value_or(locallyModified) == locallyModified;
  });
  return {rule->Activity, rule->State, {}, {}};  // the last rule always matches
}

std::vector<TCommitRowData> GatherCommitRows(TCommandContext& context) {
  return TCommitRowCollector(context).Rows();
}

}  // namespace kestrel::addin
