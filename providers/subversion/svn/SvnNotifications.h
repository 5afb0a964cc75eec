// libsvn's notifications as messages for the user.
#pragma once

#include <svn_wc.h>

#include <optional>
#include <string>

#include "scc/sccdefs.h"

namespace kestrel::svnscc {

struct Sentence {
  scc::MessageKind Kind;
  std::string Text;
};

/// The message for a notification about `label`, or nullopt if it is of no interest to users.
std::optional<Sentence> ToSentence(const svn_wc_notify_t& notice, const std::string& label);

}  // namespace kestrel::svnscc
