// From libsvn's errors to the API's return codes.
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
  TResString text{nullptr};  // for people, where libsvn's own words are about its inside
};

// libsvn reports chains of errors, what was tried outside and the reason inside.  The first row that is found anywhere
// in the chain decides: rows stand from the most telling to the most general.
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

bool Holds(const std::vector<apr_status_t>& codes, apr_status_t code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

const Row* RowOf(const std::vector<apr_status_t>& codes) {
  const auto row =
      std::find_if(kRows.begin(), kRows.end(), [&](const Row& r) { return Holds(codes, r.code); });
  return row != kRows.end() ? &*row : nullptr;
}

/// libsvn's words for one link of a chain, as part of a sentence.
std::string WordsOf(const svn_error_t& error) {
  char buffer[256];
  std::string words =
      error.message != nullptr ? error.message : svn_strerror(error.apr_err, buffer, sizeof buffer);
  if (words.starts_with("sqlite[")) words.erase(0, std::min(words.find("]: ") + 3, words.size()));
  const auto cut = [&](std::string_view letters) { words.resize(words.find_last_not_of(letters) + 1); };
  cut("\n");
  if (words.find('\n') == std::string::npos) cut(".:");  // what a server's hook printed stays as it is
  return words;
}

/// A chain goes from what was tried to the reason: the reason comes first, and what was tried after it if only that says
/// about what.
std::string SentenceOf(const svn_error_t* error) {
  std::string tried;
  for (; error->child != nullptr; error = error->child)
    if (const auto words = WordsOf(*error); words.find('\'') != std::string::npos) tried = words;
  const std::string reason = WordsOf(*error);
  const bool saysAboutWhat = tried.empty() || reason.find('\'') != std::string::npos || reason == tried;
  return saysAboutWhat ? reason : reason + " (" + tried + ")";
}

}  // namespace

bool Failure::Has(apr_status_t code) const { return Holds(codes_, code); }

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
