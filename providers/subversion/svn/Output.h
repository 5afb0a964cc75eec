// Messages to the user through the client's text-out callback.
#pragma once

#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

/// Attached while a project is open; without a callback, messages are dropped.
class Output {
 public:
  void Attach(scc::TTextOutProc callback) { callback_ = callback; }
  void Info(const std::string& text) const { Write(text, scc::SCC_MSG_INFO); }
  void Warning(const std::string& text) const { Write(text, scc::SCC_MSG_WARNING); }
  void Error(const std::string& text) const { Write(text, scc::SCC_MSG_ERROR); }
  void Write(const std::string& text, scc::MessageKind kind) const {
    if (callback_ != nullptr) callback_(text.c_str(), kind);
  }
  /// Sends a kind that has no text; true if the user cancelled.
  bool Signal(scc::MessageKind kind) const {
    return callback_ != nullptr && callback_(nullptr, kind) == scc::SCC_MSG_RTN_CANCEL;
  }

 private:
  scc::TTextOutProc callback_ = nullptr;
};

}  // namespace kestrel::svnscc
