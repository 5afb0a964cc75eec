#include <algorithm>
#include <iterator>
#include <utility>

#include "host/Errors.h"
#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"
#include "system/Paths.h"

namespace kestrel::addin {

using namespace scc;

namespace {

constexpr const char* kCallerName = "TSCCProvider";
constexpr std::size_t kNameSize = 129;

struct TCapabilityRow {
  TProviderCapabilityFlags Flag;
  Dword Bit;
};

constexpr TCapabilityRow kCapabilities[] = {
    {pcReEntrant, SCC_CAP_REENTRANT},
    {pcSccRemove, SCC_CAP_REMOVE},
    {pcSccRename, SCC_CAP_RENAME},
    {pcSccDiff, SCC_CAP_DIFF},
    {pcSccHistory, SCC_CAP_HISTORY},
    {pcSccProperties, SCC_CAP_PROPERTIES},
    {pcSccRunScc, SCC_CAP_RUNSCC},
    {pcSccGetCommandOptions, SCC_CAP_GETCOMMANDOPTIONS},
    {pcSccQueryInfo, SCC_CAP_QUERYINFO},
    {pcSccGetEvents, SCC_CAP_GETEVENTS},
    {pcSccGetProjPath, SCC_CAP_GETPROJPATH},
    {pcSccAddFromScc, SCC_CAP_ADDFROMSCC},
    {pcSccTextOut, SCC_CAP_TEXTOUT},
    {pcCommentCheckOut, SCC_CAP_COMMENTCHECKOUT},
    {pcCommentCheckIn, SCC_CAP_COMMENTCHECKIN},
    {pcCommentAdd, SCC_CAP_COMMENTADD},
    {pcCommentRemove, SCC_CAP_COMMENTREMOVE},
    {pcCommentProject, SCC_CAP_COMMENTPROJECT},
    {pcAddStoreLatest, SCC_CAP_ADD_STORELATEST},
    {pcHistoryMultiFile, SCC_CAP_HISTORY_MULTFILE},
    {pcSccPopulateList, SCC_CAP_POPULATELIST},
    {pcSccDiffAlways, SCC_CAP_DIFFALWAYS},
    {pcSccNoGetUI, SCC_CAP_GET_NOUI},
    {pcIgnoreCase, SCC_CAP_IGNORECASE},
    {pcIgnoreWhiteSpace, SCC_CAP_IGNORESPACE},
};

/// One row per flag, in order, each with one distinct bit.
constexpr bool CapabilitiesAreDistinct() {
  Dword seen = 0;
  int expected = 0;
  for (const TCapabilityRow& row : kCapabilities) {
    if (row.Flag != expected++ || (row.Bit & (row.Bit - 1)) != 0 || row.Bit == 0 || (seen & row.Bit) != 0)
      return false;
    seen |= row.Bit;
  }
  return std::size(kCapabilities) == TProviderCapabilities().size();
}
static_assert(CapabilitiesAreDistinct());

struct TInitializeRow {
  Long Code;
  TResString Text;
};
constexpr TInitializeRow kInitializeErrors[] = {
    {SCC_E_NOTAUTHORIZED, sInitNotAuthorized},
    {SCC_E_NONSPECIFICERROR, sInitNonSpecific},
    {SCC_E_INITIALIZEFAILED, sInitFailed},
};

struct TOptionRow {
  Option Number;
  Long Value;
};
constexpr TOptionRow kOptions[] = {
    {SCC_OPT_EVENTQUEUE, 1},     // the provider may collect events
    {SCC_OPT_HASCANCELMODE, 0},  // the add-in has no Cancel button
    {SCC_OPT_SHARESUBPROJ, 1},
};

}  // namespace

TSCCProviderList::TSCCProviderList(const std::string& providerPath, TWindowHandle window,
                                   const std::string& userName)
    : window_(window), userName_(userName) {
  if (Trim(providerPath).empty()) throw EAbort(sNoProviderPath);
  if (!LoadSCCDLL(providerPath)) throw EAbort(sLoadLibraryFailed);
  Initialize(providerPath);
  SetOptions();
}

TSCCProviderList::~TSCCProviderList() {
  projects_.clear();
  UnInitialize();
  UnloadSCCDLL();
}

void TSCCProviderList::Initialize(const std::string& providerPath) {
  SetProviderName(ExtractFileName(providerPath));
  TOutParam32 capabilities;
  const Long result = RunLogged("SccInitialize", [&] {
    constexpr const char* entry = "SccInitialize";
    TScratchBuffer caller(entry, kCallerName), name(entry, ""), auxLabel(entry, "");
    TOutParam32 checkOutCommentLength, commentLength;
    const Long code =
        Invoke(SccInitialize, &context_, ToWindow(window_), caller.Data(), name.Data(), &capabilities.Value,
               auxLabel.Data(), &checkOutCommentLength.Value, &commentLength.Value);
    const auto given = FromCodePageLossy(TruncateInCodePage(name.Text(), kNameSize));
    if (!Trim(given).empty()) SetProviderName(given);
    return code;
  });
  // A failure is not reported here: the following calls fail and report their codes.
  const auto error = std::ranges::find(kInitializeErrors, result, &TInitializeRow::Code);
  if (error != std::end(kInitializeErrors)) initializeError_ = error->Text;
  for (const TCapabilityRow& row : kCapabilities)
    if ((static_cast<Dword>(capabilities.Value) & row.Bit) != 0) capabilities_.set(row.Flag);
}

void TSCCProviderList::SetOptions() {
  for (const TOptionRow& row : kOptions)
    RunLogged("SccSetOption", [&] { return Invoke(SccSetOption, context_, row.Number, row.Value); });
}

void TSCCProviderList::UnInitialize() {
  RunLogged("SccUninitialize", [&] { return Invoke(SccUninitialize, context_); });
}

void TSCCProviderList::Add(const std::string& localPath) { Add(localPath, userName_); }

void TSCCProviderList::Add(const std::string& localPath, const std::string& userName) {
  projects_.push_back(std::make_unique<TSCCProviderProject>(localPath, window_, userName, context_));
}

TSCCProviderList::TProjects::iterator TSCCProviderList::Find(const std::string& localPath) {
  return std::ranges::find_if(projects_, [&](const auto& project) { return project->IsAt(localPath); });
}

void TSCCProviderList::Remove(const std::string& localPath) {
  if (const auto found = Find(localPath); found != projects_.end()) projects_.erase(found);
}

bool TSCCProviderList::SetCurrentProject(const std::string& localPath) {
  const auto found = Find(localPath);
  current_ = found != projects_.end() ? found->get() : nullptr;
  return current_ != nullptr;
}

void TSCCProviderList::CloseAll() {
  projects_.clear();
  current_ = nullptr;
}

int TSCCProviderList::GetCount() const { return static_cast<int>(projects_.size()); }

TSCCProviderProject* TSCCProviderList::GetItem(int index) const {
  return projects_.at(static_cast<std::size_t>(index)).get();
}

std::unique_ptr<TSCCProviderProject> TSCCProviderList::PutItem(int index,
                                                               std::unique_ptr<TSCCProviderProject> project) {
  return std::exchange(projects_.at(static_cast<std::size_t>(index)), std::move(project));
}

const TProviderCapabilities& TSCCProviderList::Capabilities() const { return capabilities_; }
TSCCProviderProject* TSCCProviderList::CurrentProject() const { return current_; }
const std::string& TSCCProviderList::InitializeError() const { return initializeError_; }
const std::string& TSCCProviderList::UserName() const { return userName_; }

}  // namespace kestrel::addin
