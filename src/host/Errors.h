// The exception that ends a command.
#pragma once

#include <stdexcept>

namespace kestrel {

/// Ends a command that cannot continue.  what() is a sentence for the user; the catcher writes or shows it.
class EAbort : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
  ~EAbort() override;  // defined in the host library, so that all packages share one type
};

}  // namespace kestrel
