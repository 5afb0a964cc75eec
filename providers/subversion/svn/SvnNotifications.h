// What libsvn reports while it works, as sentences.
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

/// The sentence for a notice about `label`, or nothing when users need not know.
std::optional<Sentence> ToSentence(const svn_wc_notify_t& notice, const std::string& label);

}  // namespace kestrel::svnscc
