// The message window as the add-in's log, and the one way to report what a routine throws.
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <string_view>

#include "expert/ExpertUi.h"
#include "provider/sccapiintf.h"
#include "ui/Messages.h"

namespace kestrel::addin {

/// Writes one line to the message window; drops a blank text.  Throws std::runtime_error without a message window.
void WriteMessage(TMsgWinType kind, const std::string& text);
void WriteMessageFmt(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args);

/// Writes why a provider call failed; `what` names the operation or the file.
void WriteFailure(const std::string& what, const TStateMessages& messages);

/// Runs `body` and passes a TError that it throws to `report`.  Returns whether it threw none.
template <class TError = std::exception, class TBody, class TReport>
bool RunCatching(TBody&& body, TReport&& report) {
  try {
    body();
    return true;
  } catch (const TError& error) {
    report(error);
    return false;
  }
}

/// Reports for RunCatching: a line of that kind, `format` with the error's message in place of %s.
inline auto ToLog(TMsgWinType kind, std::string_view format) {
  return [=](const std::exception& error) { WriteMessageFmt(kind, format, {error.what()}); };
}
/// The same for a command: information when it was cancelled or refused (EAbort), otherwise an error.  Drops the line
/// without a message window.
void LogCommandError(std::string_view format, const std::exception& error) noexcept;

/// Owns the message window and routes provider messages to it.  One at a time; user-interface thread only.
class TMessageLog final : private IProviderSink {
 public:
  /// `ui` is borrowed.
  explicit TMessageLog(IExpertUi& ui) : ui_(ui) {}
  TMessageLog(const TMessageLog&) = delete;
  TMessageLog& operator=(const TMessageLog&) = delete;
  ~TMessageLog() override;

  /// Creates the message window, hidden.
  void Open();
  /// Does nothing before Open().
  void ShowWindow(bool show);
  /// Writes a warning, unless it repeats the previous one: the menu checks the same conditions each time it opens.
  void WarnOnce(const std::string& text);
  /// Shows the provider's texts: the error first, then the operation's own line, then the information.
  void DisplayMessages(const std::string& title, const TStateMessages& messages);

 private:
  void Line(TSeverity severity, const std::string& text) override;
  void Box(const std::string& text) override { ui_.ShowBox(text, metInfo); }

  IExpertUi& ui_;
  IProviderSink* previous_ = nullptr;
  std::string lastWarning_;
};

}  // namespace kestrel::addin
