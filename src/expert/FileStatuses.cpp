#include "expert/FileStatuses.h"

#include <utility>

#include "expert/FileStatusStrings.h"
#include "host/Services.h"
#include "system/Text.h"

namespace kestrel::addin {

namespace {

using namespace scc;
using enum TFileMark;

struct TRule {
  TFileMark Mark;
  Long All;   // these bits are set
  Long None;  // these are not
  TResString Words;
};
/// For controlled files.  Each rule that applies adds its words; the last one decides the mark.
constexpr TRule kRules[] = {
    {OutToMe, SCC_STATUS_CHECKEDOUT, 0, sHintOutToMe},
    {Changed, SCC_STATUS_MODIFIED, 0, sHintChanged},
    {OutOfDate, SCC_STATUS_OUTOFDATE, 0, sHintOutOfDate},
    {OutOfDate, SCC_STATUS_DELETED, 0, sHintDeleted},
    {OutToOther, SCC_STATUS_OUTBYUSER, SCC_STATUS_CHECKEDOUT, sHintOutElsewhere},
    {OutToOther, SCC_STATUS_OUTOTHER, 0, sHintOutToOther},
    {InConflict, SCC_STATUS_MERGED, 0, sHintInConflict},
};

}  // namespace

TFileState ToFileState(const std::string& fileName, Long status) {
  if (status == SCC_STATUS_INVALID) return {fileName, Unknown, {}};
  if (!(status & SCC_STATUS_CONTROLLED)) return {fileName, NotControlled, sHintNotControlled};
  TFileState state{fileName, Controlled, {}};
  for (const auto& rule : kRules) {
    if ((status & rule.All) != rule.All || (status & rule.None)) continue;
    state.Mark = rule.Mark;
    state.Hint.append(state.Hint.empty() ? "" : "\n").append(rule.Words);
  }
  if (state.Hint.empty()) state.Hint = sHintControlled;
  return state;
}

bool TFileStatuses::Query(TSCCProviderProject& project, const TStringList& files, TStatusArray& statuses,
                          TStateMessages& messages) {
  if (!project.Query(files, statuses, messages)) return false;
  std::vector<TFileState> news;
  for (std::size_t i = 0; i < files.size(); ++i)
    if (Record(files[i], statuses[i])) news.push_back(ToFileState(files[i], statuses[i]));
  Report(news);
  return true;
}

void TFileStatuses::Apply(const TStringList& files, const std::function<Long(Long)>& change) {
  std::vector<TFileState> news;
  for (const auto& file : files) {
    const Long status = change(Of(file).value_or(SCC_STATUS_NOTCONTROLLED));
    if (Record(file, status)) news.push_back(ToFileState(file, status));
  }
  Report(news);
}

std::optional<Long> TFileStatuses::Of(const std::string& fileName) const {
  const auto found = known_.find(FoldCase(fileName));
  if (found == known_.end() || found->second.Status == SCC_STATUS_INVALID) return std::nullopt;
  return found->second.Status;
}

void TFileStatuses::Show(const std::string& projectFile) {
  if (std::exchange(projectFile_, projectFile) != projectFile) known_.clear();
  shown_ = true;
  std::vector<TFileState> states;
  states.reserve(known_.size());
  for (const auto& [key, known] : known_) states.push_back(ToFileState(known.FileName, known.Status));
  Report(states);
}

void TFileStatuses::Hide() {
  if (!std::exchange(shown_, false)) return;
  if (auto* host = IdeService<IOTAFileStateServices>()) host->ClearFileStates();
}

bool TFileStatuses::Record(const std::string& fileName, Long status) {
  const auto [known, isNew] = known_.try_emplace(FoldCase(fileName), fileName, status);
  return isNew || std::exchange(known->second.Status, status) != status;
}

void TFileStatuses::Report(const std::vector<TFileState>& states) const {
  auto* host = shown_ && !states.empty() ? IdeService<IOTAFileStateServices>() : nullptr;
  if (host) host->SetFileStates(states);
}

}  // namespace kestrel::addin
