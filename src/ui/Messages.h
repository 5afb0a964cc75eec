// Kinds of messages and the interface of the message window, for layers that do not link the toolkit.
#pragma once

#include <ctime>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "system/Text.h"

#undef SendMessage  // a macro of Windows' headers, where they came first

namespace kestrel::addin {

/// Kind of a line in the message window; its ordinal is the index of the icon.
enum TMsgWinType { mwtInfo, mwtWarning, mwtError, mwtStatus };

/// Kind of a message dialog; its ordinal is the index of the icon.
enum TMsgType { metError, metWarning, metInfo, metQuestion };

/// The log of the add-in's results.  Lines stay until they are cleared; sending a line neither shows nor scrolls the window.
class IMessageWindow {
 public:
  virtual ~IMessageWindow() = default;
  virtual void SendMessage(TMsgWinType kind, const std::string& text) = 0;
  void SendMessage(TMsgWinType kind, std::string_view format, std::initializer_list<TFormatArg> args) {
    SendMessage(kind, Format(format, args));
  }
  /// Posts `body` to the user-interface thread; dropped if the window is destroyed first.  Any thread.
  virtual void CallSoon(std::function<void()> body) = 0;
  /// Shows the window, non-modally, or hides it without losing its lines.
  virtual void ShowWindow(bool show) = 0;
};

/// The time stamp of a line: "mm/dd/yyyy hh:mm:ss ampm", e.g. "03/02/2024 01:05:09 PM".
std::string MessageTimeStamp(const std::tm& localTime);

}  // namespace kestrel::addin
