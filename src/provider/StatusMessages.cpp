#include <algorithm>
#include <iterator>

#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"
#include "system/Paths.h"

namespace kestrel::addin {

namespace {

constexpr std::size_t kInfo = 1;
constexpr std::size_t kError = 2;

struct TCodeRow {
  scc::Long Code;
  std::size_t Element;  // of TStateMessages
  TResString Text;
};

constexpr TCodeRow kCodes[] = {
    {scc::SCC_E_CONNECTIONFAILURE, kError, sConnectionFailure},
    {scc::SCC_E_FILENOTEXIST, kError, sFileNotExist},
    {scc::SCC_E_FILESYNTAXERR, kError, sFileSyntaxError},
    {scc::SCC_E_NOTAUTHORIZED, kError, sNotAuthorized},
    {scc::SCC_E_PROJNOTOPEN, kError, sProjectNotOpen},
    {scc::SCC_E_INVALIDFILEPATH, kError, sInvalidFilePath},
    {scc::SCC_E_PROJSYNTAXERR, kError, sProjectSyntaxError},
    {scc::SCC_E_PROJECTALREADYOPEN, kError, sProjectAlreadyOpen},
    {scc::SCC_E_INVALIDUSER, kError, sInvalidUser},
    {scc::SCC_E_SHELLFAILURE, kError, sShellFailure},
    {scc::SCC_E_FIXMERGE, kError, sFixMerge},
    {scc::SCC_E_VERIFYMERGE, kError, sVerifyMerge},
    {scc::SCC_E_TYPENOTSUPPORTED, kError, sTypeNotSupported},
    {scc::SCC_E_OPNOTPERFORMED, kError, sOperationNotPerformed},
    {scc::SCC_E_NONSPECIFICERROR, kError, sNonSpecificError},
    {scc::SCC_E_OPNOTSUPPORTED, kError, sOperationNotSupported},
    {scc::SCC_E_NOSPECIFIEDVERSION, kError, sNoSpecifiedVersion},
    {scc::SCC_E_FILEISCHECKEDOUT, kError, sFileIsCheckedOut},
    {scc::SCC_E_FILENOTCONTROLLED, kError, sFileNotControlled},
    {scc::SCC_E_FILEALREADYEXISTS, kError, sFileAlreadyExists},
    {scc::SCC_E_CHECKINCONFLICT, kError, sCheckInConflict},
    {scc::SCC_E_ACCESSFAILURE, kError, sAccessFailure},
    {scc::SCC_E_FILEOUTEXCLUSIVE, kError, sFileOutExclusive},
    {scc::SCC_E_FILEISLOCKED, kError, sFileIsLocked},
    {scc::SCC_E_ALREADYCHECKEDOUT, kError, sAlreadyCheckedOut},
    {scc::SCC_E_NOTCHECKEDOUT, kError, sNotCheckedOut},
    {scc::SCC_E_COULDNOTCREATEPROJECT, kError, sCouldNotCreateProject},
    {scc::SCC_E_UNKNOWNPROJECT, kError, sUnknownProject},
    {scc::SCC_E_INITIALIZEFAILED, kError, sInitializeFailed},
    {scc::SCC_OK, kError, sOk},
    {scc::SCC_I_ADV_SUPPORT, kInfo, sAdvancedSupport},
    {scc::SCC_I_OPERATIONCANCELED, kInfo, sOperationCancelled},
    {scc::SCC_I_PROJECTCREATED, kInfo, sProjectCreated},
    // Intentional: after "not affected" users should check their file, as after "reload".
    {scc::SCC_I_FILENOTAFFECTED, kInfo, sReloadFile},
    {scc::SCC_I_RELOADFILE, kInfo, sReloadFile},
    {scc::SCC_I_FILEDIFFERS, kInfo, sFileDiffers},
    {scc::SCC_I_SHARESUBPROJOK, kInfo, sShareSubprojectOk},
};
constexpr TCodeRow kUnlisted{0, kError, sUndefinedCode};

/// FindCode() indexes the table: codes must be consecutive.  Exactly the positive ones are information.
constexpr bool CodesAreInOrder() {
  scc::Long expected = kCodes[0].Code;
  for (const TCodeRow& row : kCodes)
    if (row.Code != expected++ || (row.Element == kInfo) != (row.Code > 0)) return false;
  return true;
}
static_assert(CodesAreInOrder());

const TCodeRow& FindCode(scc::Long code) {
  if (code < std::begin(kCodes)->Code || code > std::rbegin(kCodes)->Code) return kUnlisted;
  return kCodes[code - kCodes[0].Code];
}

struct TStatusRow {
  TQueryFlags Flag;
  scc::Long Value;
  TResString Text;

  /// The first two flags match the whole word, the others one bit.
  bool Matches(scc::Long status) const {
    return Flag <= qsNotControlled ? status == Value : (status & Value) != 0;
  }
};

constexpr TStatusRow kStatuses[] = {
    {qsNone, scc::SCC_STATUS_INVALID, sStatusNone},
    {qsNotControlled, scc::SCC_STATUS_NOTCONTROLLED, sStatusNotControlled},
    {qsControlled, scc::SCC_STATUS_CONTROLLED, sStatusControlled},
    {qsCheckedOutByCurrentUser, scc::SCC_STATUS_CHECKEDOUT, sStatusCheckedOut},
    {qsCheckedOutToAnotherUser, scc::SCC_STATUS_OUTOTHER, sStatusOutOther},
    {qsCheckedOutExclusivelyToSomeone, scc::SCC_STATUS_OUTEXCLUSIVE, sStatusOutExclusive},
    {qsCheckedOutToMultipleUsers, scc::SCC_STATUS_OUTMULTIPLE, sStatusOutMultiple},
    {qsOutOfDate, scc::SCC_STATUS_OUTOFDATE, sStatusOutOfDate},
    {qsDeletedFromProject, scc::SCC_STATUS_DELETED, sStatusDeleted},
    {qsNoMoreVersionsAllowed, scc::SCC_STATUS_LOCKED, sStatusLocked},
    {qsHasBeenMerged, scc::SCC_STATUS_MERGED, sStatusMerged},
    {qsSharedBetweenProjects, scc::SCC_STATUS_SHARED, sStatusShared},
    {qsSharedToExplicitVersion, scc::SCC_STATUS_PINNED, sStatusPinned},
    {qsHasBeenModified, scc::SCC_STATUS_MODIFIED, sStatusModified},
    {qsCheckedOutToCurrentUser, scc::SCC_STATUS_OUTBYUSER, sStatusOutByUser},
};

/// One row per flag, in order; each bit row has the next bit.
constexpr bool StatusesAreInOrder() {
  for (int i = 0; i < static_cast<int>(std::size(kStatuses)); ++i)
    if (kStatuses[i].Flag != i || (i >= qsControlled && kStatuses[i].Value != 1 << (i - qsControlled)))
      return false;
  return std::size(kStatuses) == TQueryStatus().size();
}
static_assert(StatusesAreInOrder());

}  // namespace

void DecodeReturnCode(scc::Long code, TStateMessages& messages) {
  messages.fill({});
  const TCodeRow& row = FindCode(code);
  messages[row.Element] = row.Text;
}

TQueryStatus ToQueryStatus(scc::Long status) {
  TQueryStatus flags;
  for (const TStatusRow& row : kStatuses) flags[row.Flag] = row.Matches(status);
  return flags;
}

void DecodeQueryStatus(const std::string& fileName, scc::Long status) {
  const std::string name = ExtractFileName(fileName);
  for (const TStatusRow& row : kStatuses)
    if (row.Matches(status)) WriteProviderLine(TSeverity::Info, Format(row.Text, {name}));
}

}  // namespace kestrel::addin
