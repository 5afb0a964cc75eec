// What the provider calls back, from whichever thread.
#pragma once

#include "provider/sccdefs.h"

namespace isolation {

scc::Long SCC_CALL TextOutProc(const char* text, scc::Dword kind) noexcept;
scc::Bool SCC_CALL PopulateProc(void* data, scc::Bool addOrKeep, scc::Long status, const char* name) noexcept;

/// While this lives a call is carried out: somebody answers questions.
class Answerable {
 public:
  Answerable();
  ~Answerable();
  Answerable(const Answerable&) = delete;
  Answerable& operator=(const Answerable&) = delete;
};

}  // namespace isolation
