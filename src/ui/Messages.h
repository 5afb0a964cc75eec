// The kinds of messages and the two windows that show them, as the layers without a toolkit see them.
#pragma once

#include <ctime>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "system/Text.h"

#undef SendMessage  // a macro of Windows' headers, where they came first

namespace kestrel::addin {

/// Kind of a line of the message window; also the index of its icon.
enum TMsgWinType { mwtInfo, mwtWarning, mwtError, mwtStatus };

/// Kind of a message dialog; also the index of its icon.
enum TMsgType { metError, metWarning, metInfo, metQuestion };

/// The running log of outcomes.  Lines accumulate until they are cleared; sending neither shows nor scrolls it.
class IMessageWindow {
 public:
  virtual ~IMessageWindow() = default;
  virtual void SendMessage(TMsgWinType kind, const std::string& text) = 0;
  void SendMessage(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args) {
    SendMessage(kind, Format(format, args));
  }
  /// From any thread: calls `body` on the user-interface thread soon, unless the window is gone by then.
  virtual void CallSoon(std::function<void()> body) = 0;
  /// Shows the window, or hides it without losing its lines.  Non-modal.
  virtual void ShowWindow(bool show) = 0;
};

/// The time stamp of a line: "mm/dd/yyyy hh:mm:ss ampm" on the 12-hour clock, e.g. "03/02/2024 01:05:09 PM".
std::string MessageTimeStamp(const std::tm& localTime);

}  // namespace kestrel::addin
