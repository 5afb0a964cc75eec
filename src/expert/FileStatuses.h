// The status of files as the provider last answered, and what the host is told of it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/FileStates.h"
#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// What the host shows for a file of that status.
TFileState ToFileState(const std::string& fileName, scc::Long status);

/// The last known status words of the open project, which the host shows if it has IOTAFileStateServices.  Lookups take
/// constant time; the host gets only what has changed, in one call.  User-interface thread only.
class TFileStatuses {
 public:
  /// Calls project.Query() and records the answer if it succeeded.
  bool Query(TSCCProviderProject& project, const TStringList& files, TStatusArray& statuses,
             TStateMessages& messages);
  /// Replaces the statuses of `files` by what `change` makes of them; it gets 0 for an unknown one.
  void Apply(const TStringList& files, const std::function<scc::Long(scc::Long)>& change);
  /// The file's last known status, ignoring case; nullopt if the provider has not answered or had no information.
  std::optional<scc::Long> Of(const std::string& fileName) const;

  /// The host project was opened: the host may show its statuses.  Those of another project are forgotten; those of the
  /// same one are shown again, as after a reload.
  void Show(const std::string& projectFile);
  /// No project is open: the host shows nothing until Show().
  void Hide();

 private:
  struct TKnown {
    std::string FileName;
    scc::Long Status;
  };
  /// Whether this was news.
  bool Record(const std::string& fileName, scc::Long status);
  void Report(const std::vector<TFileState>& states) const;

  std::unordered_map<std::string, TKnown> known_;  // by folded name
  std::string projectFile_;                        // whose statuses are known
  bool shown_ = false;
};

}  // namespace kestrel::addin
