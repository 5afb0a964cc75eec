#include "expert/MessageLog.h"

#include <utility>

#include "expert/SccExpertStrings.h"
#include "host/Errors.h"

namespace kestrel::addin {

namespace {
std::unique_ptr<IMessageWindow> aMsgWin;  // owned by the open TMessageLog

TMsgWinType LineTypeOf(TSeverity severity) {
  switch (severity) {
    case TSeverity::Warning:
      return mwtWarning;
    case TSeverity::Error:
      return mwtError;
    default:
      return mwtInfo;
  }
}
}  // namespace

void WriteMessage(TMsgWinType kind, const std::string& text) {
  if (!aMsgWin) throw std::runtime_error(sMessageWindowNil);
  if (!Trim(text).empty()) aMsgWin->SendMessage(kind, text);
}

void WriteMessageFmt(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args) {
  WriteMessage(kind, Format(format, args));
}

void WriteFailure(const std::string& what, const TStateMessages& messages) {
  const auto& [line, information, error] = messages;
  WriteMessageFmt(mwtError, sFailure, {what, error.empty() ? information : error});
}

void LogCommandError(std::string_view format, const std::exception& error) noexcept {
  const auto kind = dynamic_cast<const EAbort*>(&error) ? mwtInfo : mwtError;
  if (aMsgWin) aMsgWin->SendMessage(kind, format, {error.what()});
}

void TMessageLog::Open() {
  aMsgWin = ui_.CreateMessageWindow();
  previous_ = SetProviderSink(this);
  SetProviderWaker([] { aMsgWin->CallSoon(ShowProviderLines); });
}

TMessageLog::~TMessageLog() {
  if (!aMsgWin) return;
  SetProviderWaker({});
  SetProviderSink(previous_);
  aMsgWin.reset();
}

void TMessageLog::Line(TSeverity severity, const std::string& text) {
  WriteMessage(LineTypeOf(severity), text);
}

void TMessageLog::ShowWindow(bool show) {
  if (aMsgWin) aMsgWin->ShowWindow(show);
}

void TMessageLog::WarnOnce(const std::string& text) {
  if (std::exchange(lastWarning_, text) != text) WriteMessage(mwtWarning, text);
}

void TMessageLog::DisplayMessages(const std::string& title, const TStateMessages& messages) {
  const auto& [line, information, error] = messages;
  if (!error.empty()) ui_.ShowMsgDialog(title, error, metError);
  if (!line.empty()) {
    WriteMessage(mwtInfo, line);
    ui_.ShowMsgDialog(title, line, metWarning);  // intentional: success lines appear with the warning icon
  }
  if (!information.empty()) ui_.ShowMsgDialog(title, information, metWarning);
}

}  // namespace kestrel::addin
