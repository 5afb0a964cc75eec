// The callbacks that the provider gets; it may call them from any thread.
#pragma once

#include "scc/sccdefs.h"

namespace kestrel::isolation {

scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept;
scc::Bool SCC_CALL PopulateProc(void* data, scc::Bool addOrKeep, scc::Long status, const char* name) noexcept;

/// Scope of a call: only within one does the client answer queries.
class CallScope {
 public:
  CallScope();
  ~CallScope();
  CallScope(const CallScope&) = delete;
  CallScope& operator=(const CallScope&) = delete;
};
/// Whether a call is being executed.  Any thread.
bool IsCallRunning();

}  // namespace kestrel::isolation
