// Progress of one provider call on many files, inferred from the lines that the provider writes.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_set>

#include "expert/ExpertUi.h"
#include "expert/ProviderMessageRecorder.h"

namespace kestrel::addin {

/// Scoped to the call.  A file counts when a line names it for the first time;
/// names are recognised by their last word, so files that share it count once.
class TCallProgress {
 public:
  enum class Kind { Status, Command };

  /// `caption` is the window's title, `what` its text before the first line.  `ui` and `files` are borrowed.
  TCallProgress(IExpertUi& ui, const std::string& caption, Kind kind, const std::string& what,
                const TStringList& files);
  TCallProgress(const TCallProgress&) = delete;
  TCallProgress& operator=(const TCallProgress&) = delete;

 private:
  void OnLine(const std::string& line);
  /// The first file name in the line, as written there; empty when it has none.
  std::string FileNamedIn(const std::string& line);

  const TStringList& files_;
  std::unordered_set<std::string> names_;  // last words of the file names; filled by the first line
  std::unordered_set<std::string> named_;
  std::string latest_;
  const std::unique_ptr<IProgress> progress_;
  const TProviderMessageRecorder lines_{[this](const std::string& line) { OnLine(line); }};
};

}  // namespace kestrel::addin
