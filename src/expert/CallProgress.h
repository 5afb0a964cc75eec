// What one provider call on many files is doing, by the lines that the provider writes meanwhile.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <unordered_set>

#include "expert/ExpertUi.h"
#include "provider/sccapiintf.h"

namespace kestrel::addin {

/// Lives as long as the call.  Hands all lines on to the sink before it, and counts a file as under way when a line
/// names it for the first time; a name is recognised by its last word, so files that share one count once.
class TCallProgress final : private IProviderSink {
 public:
  enum class Kind { Status, Command };

  /// `caption` is the window's, `what` says what happens to the files before the provider says it.  `ui` and `files`
  /// are borrowed.
  TCallProgress(IExpertUi& ui, const std::string& caption, Kind kind, const std::string& what,
                const TStringList& files);
  ~TCallProgress() override;
  TCallProgress(const TCallProgress&) = delete;
  TCallProgress& operator=(const TCallProgress&) = delete;

 private:
  void Line(TSeverity severity, const std::string& text) override;
  void Box(const std::string& text) override;
  /// The file's path as the line has it; empty when it names none.
  std::string FileNamedIn(const std::string& line);

  const TStringList& files_;
  std::unordered_set<std::string> names_;  // last words of the files' names; from the first line on
  std::unordered_set<std::string> named_;
  std::string latest_;
  const std::unique_ptr<IProgress> progress_;
  IProviderSink* previous_ = nullptr;
};

}  // namespace kestrel::addin
