// Status and file commands of a provider project.
#include <algorithm>

#include "host/Errors.h"
#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"

namespace kestrel::addin {

using namespace scc;

namespace {

constexpr std::size_t kCanaryWords = 256;
constexpr Long kCanaryWord = 0x5A5A5A5A;

}  // namespace

TStatusArray::TStatusArray() : words_(kMaxFiles + kCanaryWords, kCanaryWord) { Clear(); }

void TStatusArray::Clear() { std::fill_n(words_.begin(), kMaxFiles, 0); }

TOverrun TStatusArray::CheckOverrun() {
  const auto canary = words_.begin() + kMaxFiles;
  if (std::all_of(canary, words_.end(), [](Long word) { return word == kCanaryWord; })) return TOverrun::None;
  const bool passed = words_.back() != kCanaryWord;
  std::fill(canary, words_.end(), kCanaryWord);
  return passed ? TOverrun::Passed : TOverrun::Caught;
}

bool TSCCProviderProject::Query(const TStringList& files, TStatusArray& statuses, TStateMessages& messages) {
  RequireFiles(files, sQueryListEmpty);
  RequireAtMostMaxFiles(files);
  const Long code = RunWithMessages(messages, [&] {
    statuses.Clear();
    TFileArray names(files);
    return Invoke(SccQueryInfo, context_, names.Count(), names.Data(), statuses.data());
  });
  ReportOverrun("SccQueryInfo", statuses.CheckOverrun());
  return code == SCC_OK;
}

bool TSCCProviderProject::CheckOutFile(const TStringList& files, const std::string& comment,
                                       TStateMessages& messages) {
  RequireFiles(files, sCheckOutListEmpty);
  const Long code = RunWithMessages(messages, [&] {
    const TProviderComment text(comment, sCheckOutComment);
    TFileArray names(files);
    return Invoke(SccCheckOut, context_, Window(), names.Count(), names.Data(), text.Data(), 0, Options());
  });
  return code == SCC_OK;
}

bool TSCCProviderProject::AddFile(const TStringList& files, const std::string& comment, bool keepCheckedOut,
                                  TStateMessages& messages) {
  RequireFiles(files, sAddListEmpty);
  const Long code = RunWithMessages(messages, [&] {
    const TProviderComment text(comment);
    TFileArray names(files);
    // The choice is the same for all files, but providers may read one word per file.
    std::vector<Long> flags(files.size(), keepCheckedOut ? SCC_KEEP_CHECKEDOUT : 0);
    return Invoke(SccAdd, context_, Window(), names.Count(), names.Data(), text.Data(), flags.data(),
                  Options());
  });
  return code == SCC_OK;
}

bool TSCCProviderProject::CheckInFile(const TStringList& files, const std::string& comment,
                                      bool keepCheckedOut, TStateMessages& messages) {
  RequireFiles(files, sCheckInListEmpty);
  const Long code = RunWithMessages(messages, [&] {
    const TProviderComment text(comment, sCheckInComment);
    TFileArray names(files);
    const Long flags = keepCheckedOut ? SCC_KEEP_CHECKEDOUT : 0;
    return Invoke(SccCheckin, context_, Window(), names.Count(), names.Data(), text.Data(), flags, Options());
  });
  return code == SCC_OK;
}

bool TSCCProviderProject::RemoveFile(const TStringList& files, TStateMessages& messages) {
  RequireFiles(files, sRemoveListEmpty);
  const Long code = RunWithMessages(messages, [&] {
    const TProviderComment text({}, sRemoveComment);
    TFileArray names(files);
    return Invoke(SccRemove, context_, Window(), names.Count(), names.Data(), text.Data(), 0, Options());
  });
  return code == SCC_OK;
}

bool TSCCProviderProject::UnCheckOutFile(const TStringList& files, TStateMessages& messages) {
  RequireFiles(files, sAddListEmpty);  // intentional: the text of the add command
  const Long code = RunWithMessages(messages, [&] {
    TFileArray names(files);
    return Invoke(SccUncheckout, context_, Window(), names.Count(), names.Data(), 0, Options());
  });
  return code == SCC_OK;
}

Long TSCCProviderProject::GetFile(const TStringList& files, TStateMessages& messages) {
  return Get(files, 0, messages);
}

Long TSCCProviderProject::GetFilesAndDirs(const TStringList& names, TStateMessages& messages) {
  return Get(names, SCC_GET_ALL | SCC_GET_RECURSIVE, messages);
}

Long TSCCProviderProject::Get(const TStringList& names, Long flags, TStateMessages& messages) {
  RequireFiles(names, sGetListEmpty);
  return RunWithMessages(messages, [&] {
    TFileArray array(names);
    return Invoke(SccGet, context_, Window(), array.Count(), array.Data(), flags, Options());
  });
}

Long TSCCProviderProject::ShowDiff(const std::string& fileName, Long flags, TStateMessages& messages) {
  return Diff(fileName, flags, messages);
}

bool TSCCProviderProject::SilentDiff(const std::string& fileName, TStateMessages& messages) {
  return Diff(fileName, SCC_DIFF_QD_CONTENTS, messages) == SCC_I_FILEDIFFERS;
}

Long TSCCProviderProject::Diff(const std::string& fileName, Long flags, TStateMessages& messages) {
  return RunWithMessages(messages, [&] {
    TFileArray name({fileName});
    return Invoke(SccDiff, context_, Window(), *name.Data(), flags, Options());
  });
}

Long TSCCProviderProject::ShowHistory(const std::string& fileName, TStateMessages& messages) {
  if (Trim(fileName).empty()) throw EAbort(sHistoryNameBlank);
  return RunWithMessages(messages, [&] {
    TFileArray name({fileName});
    return Invoke(SccHistory, context_, Window(), name.Count(), name.Data(), 0, Options());
  });
}

bool TSCCProviderProject::PopulateList(SCCCommand command, const TStringList& files, TPopListFunc callback,
                                       TStatusArray& statuses, TStateMessages& messages) {
  return Populate(command, files, callback, statuses, 0, messages);
}

bool TSCCProviderProject::PopulateDirectoriesList(SCCCommand command, const TStringList& files,
                                                  TPopListFunc callback, TStatusArray& statuses,
                                                  TStateMessages& messages) {
  return Populate(command, files, callback, statuses, SCC_PL_DIR, messages);
}

bool TSCCProviderProject::Populate(SCCCommand command, const TStringList& files, TPopListFunc callback,
                                   TStatusArray& statuses, Long flags, TStateMessages& messages) {
  RequireAtMostMaxFiles(files);
  bool answered = false;
  RunWithMessages(messages, [&] {
    TFileArray names(files);
    const Long code = Invoke(SccPopulateList, context_, command, names.Count(), names.Data(), callback,
                             nullptr, statuses.data(), flags);
    answered = true;
    return code;
  });
  ReportOverrun("SccPopulateList", statuses.CheckOverrun());
  return answered;  // whatever the code: a provider may decline, and the list stays unchanged
}

bool TSCCProviderProject::GetCommandOptions(TCommandOptions command, TCommandOptionFlags flag,
                                            TStateMessages& messages) {
  const Long code = RunWithMessages(messages, [&] {
    void** block = flag == coShowAdvDialog ? options_.data() : nullptr;
    return Invoke(SccGetCommandOptions, context_, Window(), static_cast<SCCCommand>(command), block);
  });
  return flag == coQuery && code == SCC_I_ADV_SUPPORT;
}

void TSCCProviderProject::AddFromScc(TStateMessages& messages) {
  const Long code = RunWithMessages(messages, [&] {
    TOutParam32 count;
    const char** names = nullptr;  // owned by the provider; not used
    return Invoke(SccAddFromScc, context_, Window(), &count.Value, &names);
  });
  if (!ProviderSink()) return;
  if (code == SCC_OK) ProviderSink()->Box(sAddFromSccOk);
  if (code == SCC_I_OPERATIONCANCELED) ProviderSink()->Box(sOperationCancelled);
}

}  // namespace kestrel::addin
