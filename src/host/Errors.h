// The framework's two kinds of failure that cross subsystem borders.
#pragma once

#include <stdexcept>

namespace kestrel {

/// The silent abort exception: ends a command that cannot go on, carrying its message.  Whoever catches it writes
/// or shows the text; nothing else is raised on purpose.
class EAbort : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  ~EAbort() override;  // defined in the host library: one type identity for every package
};

}  // namespace kestrel
