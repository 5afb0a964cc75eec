// Maps libsvn errors to SCC return codes.
#include <svn_error_codes.h>

#include <algorithm>
#include <array>

#include "subversion/svn/SvnHandles.h"
#include "subversion/svn/SvnStrings.h"

namespace kestrel::svnscc {
namespace {

struct Row {
  apr_status_t code;
  scc::Long result;
  TResString text{nullptr};  // for the user, where libsvn's text is too technical
};

// libsvn reports chains of errors, from what was attempted to the cause.  The first row whose code is anywhere in the chain
// applies, so the rows go from the most specific to the most general.
constexpr std::array kRows{
    Row{SVN_ERR_SQLITE_READONLY, scc::SCC_E_NOTAUTHORIZED, sCopyReadOnly},
    Row{SVN_ERR_FS_LOCK_OWNER_MISMATCH, scc::SCC_E_FILEOUTEXCLUSIVE, sOutByOther},
    Row{SVN_ERR_FS_PATH_ALREADY_LOCKED, scc::SCC_E_FILEOUTEXCLUSIVE, sOutByOther},
    Row{SVN_ERR_FS_BAD_LOCK_TOKEN, scc::SCC_E_FILEISLOCKED, sLockLost},
    Row{SVN_ERR_FS_NO_LOCK_TOKEN, scc::SCC_E_FILEISLOCKED, sLockLost},
    Row{SVN_ERR_FS_NO_SUCH_LOCK, scc::SCC_E_NOTCHECKEDOUT, sLockLost},
    Row{SVN_ERR_CLIENT_MISSING_LOCK_TOKEN, scc::SCC_E_NOTCHECKEDOUT},
    Row{SVN_ERR_WC_FOUND_CONFLICT, scc::SCC_E_FIXMERGE},
    Row{SVN_ERR_FS_OUT_OF_DATE, scc::SCC_E_CHECKINCONFLICT, sOutOfDate},
    Row{SVN_ERR_FS_TXN_OUT_OF_DATE, scc::SCC_E_CHECKINCONFLICT, sOutOfDate},
    Row{SVN_ERR_FS_CONFLICT, scc::SCC_E_CHECKINCONFLICT, sOutOfDate},
    Row{SVN_ERR_WC_NOT_UP_TO_DATE, scc::SCC_E_CHECKINCONFLICT, sOutOfDate},
    Row{SVN_ERR_RA_OUT_OF_DATE, scc::SCC_E_CHECKINCONFLICT, sOutOfDate},
    Row{SVN_ERR_FS_ALREADY_EXISTS, scc::SCC_E_FILEALREADYEXISTS},
    Row{SVN_ERR_RA_DAV_ALREADY_EXISTS, scc::SCC_E_FILEALREADYEXISTS},
    Row{SVN_ERR_ENTRY_EXISTS, scc::SCC_E_FILEALREADYEXISTS},
    Row{SVN_ERR_RA_NOT_AUTHORIZED, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_AUTHN_FAILED, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_AUTHN_CREDS_UNAVAILABLE, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_AUTHN_CREDS_NOT_SAVED, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_AUTHN_NO_PROVIDER, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_FS_NO_USER, scc::SCC_E_INVALIDUSER},
    Row{SVN_ERR_AUTHZ_ROOT_UNREADABLE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_AUTHZ_UNREADABLE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_AUTHZ_PARTIALLY_READABLE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_AUTHZ_UNWRITABLE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_RA_DAV_FORBIDDEN, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_REPOS_DISABLED_FEATURE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_REPOS_HOOK_FAILURE, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_RA_LOCAL_REPOS_OPEN_FAILED, scc::SCC_E_ACCESSFAILURE, sNoRepository},
    Row{SVN_ERR_RA_LOCAL_REPOS_NOT_FOUND, scc::SCC_E_ACCESSFAILURE, sNoRepository},
    Row{SVN_ERR_RA_SVN_REPOS_NOT_FOUND, scc::SCC_E_ACCESSFAILURE, sNoRepository},
    Row{SVN_ERR_RA_UUID_MISMATCH, scc::SCC_E_UNKNOWNPROJECT},
    Row{SVN_ERR_BAD_URL, scc::SCC_E_PROJSYNTAXERR},
    Row{SVN_ERR_RA_ILLEGAL_URL, scc::SCC_E_PROJSYNTAXERR},
    Row{SVN_ERR_RA_CANNOT_CREATE_SESSION, scc::SCC_E_CONNECTIONFAILURE},
    Row{SVN_ERR_RA_SVN_CONNECTION_CLOSED, scc::SCC_E_CONNECTIONFAILURE},
    Row{SVN_ERR_RA_SVN_IO_ERROR, scc::SCC_E_CONNECTIONFAILURE},
    Row{SVN_ERR_RA_DAV_CONN_TIMEOUT, scc::SCC_E_CONNECTIONFAILURE},
    Row{APR_ECONNREFUSED, scc::SCC_E_CONNECTIONFAILURE},
    Row{APR_ECONNRESET, scc::SCC_E_CONNECTIONFAILURE},
    Row{APR_EHOSTUNREACH, scc::SCC_E_CONNECTIONFAILURE},
    Row{APR_ENETUNREACH, scc::SCC_E_CONNECTIONFAILURE},
    Row{APR_ETIMEDOUT, scc::SCC_E_CONNECTIONFAILURE},
    Row{SVN_ERR_WC_LOCKED, scc::SCC_E_ACCESSFAILURE, sBusy},
    Row{SVN_ERR_WC_CLEANUP_REQUIRED, scc::SCC_E_ACCESSFAILURE, sBusy},
    Row{SVN_ERR_SQLITE_BUSY, scc::SCC_E_ACCESSFAILURE, sBusy},
    Row{SVN_ERR_WC_UPGRADE_REQUIRED, scc::SCC_E_INVALIDFILEPATH},
    Row{SVN_ERR_FS_NO_SUCH_REVISION, scc::SCC_E_NOSPECIFIEDVERSION},
    Row{SVN_ERR_FS_NOT_FOUND, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_RA_DAV_PATH_NOT_FOUND, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_CLIENT_UNRELATED_RESOURCES, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_WC_PATH_NOT_FOUND, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_WC_NOT_WORKING_COPY, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_UNVERSIONED_RESOURCE, scc::SCC_E_FILENOTCONTROLLED},
    Row{SVN_ERR_WC_OBSTRUCTED_UPDATE, scc::SCC_E_INVALIDFILEPATH},
    Row{SVN_ERR_FS_PATH_SYNTAX, scc::SCC_E_INVALIDFILEPATH},
    Row{APR_EINVAL, scc::SCC_E_INVALIDFILEPATH},
    Row{APR_EACCES, scc::SCC_E_NOTAUTHORIZED},
    Row{SVN_ERR_UNSUPPORTED_FEATURE, scc::SCC_E_OPNOTSUPPORTED},
    Row{SVN_ERR_CANCELLED, scc::SCC_I_OPERATIONCANCELED},
};

bool Contains(const std::vector<apr_status_t>& codes, apr_status_t code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

const Row* RowOf(const std::vector<apr_status_t>& codes) {
  const auto row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return Contains(codes, r.code); });
  return row != kRows.end() ? &*row : nullptr;
}

/// libsvn's text for one link of a chain, without its final punctuation.
std::string TextOf(const svn_error_t& error) {
  char buffer[256];
  std::string text =
      error.message != nullptr ? error.message : svn_strerror(error.apr_err, buffer, sizeof buffer);
  if (text.starts_with("sqlite[")) text.erase(0, std::min(text.find("]: ") + 3, text.size()));
  const auto cut = [&](std::string_view letters) { text.resize(text.find_last_not_of(letters) + 1); };
  cut("\n");
  if (text.find('\n') == std::string::npos) cut(".:");  // the output of a server's hook stays unchanged
  return text;
}

/// The cause, followed by what was attempted if only that names the object.
std::string SentenceOf(const svn_error_t* error) {
  std::string tried;
  for (; error->child != nullptr; error = error->child)
    if (const auto text = TextOf(*error); text.find('\'') != std::string::npos) tried = text;
  const std::string reason = TextOf(*error);
  const bool namesObject = tried.empty() || reason.find('\'') != std::string::npos || reason == tried;
  return namesObject ? reason : reason + " (" + tried + ")";
}

}  // namespace

bool Failure::Has(apr_status_t code) const { return Contains(codes_, code); }

bool Failure::MeansNoWorkingCopy() const {
  return Has(SVN_ERR_WC_NOT_WORKING_COPY) || Has(SVN_ERR_WC_PATH_NOT_FOUND);
}

bool Failure::MeansBusyWorkingCopy() const {
  return Has(SVN_ERR_WC_LOCKED) || Has(SVN_ERR_WC_CLEANUP_REQUIRED) || Has(SVN_ERR_SQLITE_BUSY);
}

Failure ToFailure(svn_error_t* error) {
  error = svn_error_purge_tracing(error);
  std::vector<apr_status_t> codes;
  for (const svn_error_t* link = error; link != nullptr; link = link->child) codes.push_back(link->apr_err);
  const Row* row = RowOf(codes);
  const scc::Long result = row != nullptr ? row->result : static_cast<scc::Long>(scc::SCC_E_NONSPECIFICERROR);
  const bool hasText = row != nullptr && row->text.Text != nullptr;
  return Failure(result, hasText ? row->text.str() : SentenceOf(error), codes);
}

std::string AsSentence(std::string reason) {
  if (!reason.empty() && reason.front() >= 'a' && reason.front() <= 'z')
    reason.front() = static_cast<char>(reason.front() + ('A' - 'a'));
  if (!reason.empty() && reason.find_last_of(".?!") + 1 != reason.size()) reason += '.';
  return reason;
}

void Check(svn_error_t* error) {
  if (error == SVN_NO_ERROR) return;
  const Failure failure = ToFailure(error);
  svn_error_clear(error);
  throw failure;
}

apr_array_header_t* ToArray(const std::vector<std::string>& texts, apr_pool_t* pool) {
  apr_array_header_t* array = apr_array_make(pool, static_cast<int>(texts.size()), sizeof(const char*));
  for (const auto& text : texts)
    *static_cast<const char**>(apr_array_push(array)) = apr_pstrmemdup(pool, text.data(), text.size());
  return array;
}

}  // namespace kestrel::svnscc
