// RAII owners for APR and libsvn objects, and the conversion of libsvn errors to exceptions.
#pragma once

#include <apr_tables.h>
#include <svn_error.h>
#include <svn_pools.h>

#include <exception>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// Whether APR has been terminated: the process is ending and no pool may be touched.
bool HasRuntimeEnded() noexcept;

/// An APR memory pool, destroyed with its owner.
class Pool {
 public:
  Pool() : pool_(svn_pool_create(nullptr)) {}
  explicit Pool(apr_pool_t* parent) : pool_(svn_pool_create(parent)) {}
  Pool(Pool&& other) noexcept : pool_(std::exchange(other.pool_, nullptr)) {}
  Pool& operator=(Pool&& other) noexcept {
    std::swap(pool_, other.pool_);
    return *this;
  }
  ~Pool() {
    // A client may keep its context in a static object, which is destroyed after the runtime.
    if (pool_ != nullptr && !HasRuntimeEnded()) svn_pool_destroy(pool_);
  }
  operator apr_pool_t*() const { return pool_; }
  void Clear() { svn_pool_clear(pool_); }

 private:
  apr_pool_t* pool_;
};

/// An error as an SCC return code and a text for the user.
class Failure : public std::runtime_error {
 public:
  Failure(scc::Long result, const std::string& text, std::vector<apr_status_t> codes = {})
      : std::runtime_error(text), result_(result), codes_(std::move(codes)) {}
  scc::Long Result() const { return result_; }
  /// The same failure with another text.
  Failure With(const std::string& text) const { return Failure(result_, text, codes_); }
  /// Whether libsvn's error chain contains `code`.
  bool Has(apr_status_t code) const;
  /// Whether a path belongs to no working copy.
  bool MeansNoWorkingCopy() const;
  /// Whether libsvn reports, without the owner, a lock that this working copy has no token for.
  bool MeansOthersLock() const {
    return !codes_.empty() && (result_ == scc::SCC_E_FILEOUTEXCLUSIVE || result_ == scc::SCC_E_FILEISLOCKED);
  }
  /// Whether the working copy is locked by another process, or by one that died.
  bool MeansBusyWorkingCopy() const;

 private:
  scc::Long result_;
  std::vector<apr_status_t> codes_;
};

/// `reason` with a capital first letter and a full stop.
std::string AsSentence(std::string reason);

/// Converts an error chain; does not take ownership.
Failure ToFailure(svn_error_t* error);
/// Takes ownership of `error`; throws Failure unless it is SVN_NO_ERROR.
void Check(svn_error_t* error);

/// Runs `body` inside a C callback; stores an exception in `exception` and returns SVN_ERR_CANCELLED, which stops libsvn.
template <class Body>
svn_error_t* RunInCallback(std::exception_ptr& exception, Body&& body) noexcept {
  try {
    body();
    return SVN_NO_ERROR;
  } catch (...) {
    exception = std::current_exception();
    return svn_error_create(SVN_ERR_CANCELLED, nullptr, nullptr);
  }
}
/// Check() for a call whose callbacks used RunInCallback: an exception of a callback comes first.
inline void Check(svn_error_t* error, const std::exception_ptr& exception) {
  if (exception) {
    svn_error_clear(error);
    std::rethrow_exception(exception);
  }
  Check(error);
}

/// An APR array of C strings, copied into `pool`.
apr_array_header_t* ToArray(const std::vector<std::string>& texts, apr_pool_t* pool);

}  // namespace kestrel::svnscc
