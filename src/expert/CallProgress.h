// Progress of one provider call on many files, inferred from the lines that the provider writes.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_set>

#include "expert/ExpertUi.h"
#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// Scoped to the call.  Forwards all messages to the previous sink.  A file counts when a line names it for the first time;
/// names are recognised by their last word, so files that share it count once.
class TCallProgress final : private IProviderSink {
 public:
  enum class Kind { Status, Command };

  /// `caption` is the window's title, `what` its text before the first line.  `ui` and `files` are borrowed.
  TCallProgress(IExpertUi& ui, const std::string& caption, Kind kind, const std::string& what,
                const TStringList& files);
  ~TCallProgress() override;
  TCallProgress(const TCallProgress&) = delete;
  TCallProgress& operator=(const TCallProgress&) = delete;

 private:
  void Line(TSeverity severity, const std::string& text) override;
  void Box(const std::string& text) override;
  /// The first file name in the line, as written there; empty when it has none.
  std::string FileNamedIn(const std::string& line);

  const TStringList& files_;
  std::unordered_set<std::string> names_;  // last words of the file names; filled by the first line
  std::unordered_set<std::string> named_;
  std::string latest_;
  const std::unique_ptr<IProgress> progress_;
  IProviderSink* previous_ = nullptr;
};

}  // namespace kestrel::addin
