// A provider that lacks most entry points, gives no name, writes behind its name buffer and computes in a way of its own.
#include <cfenv>

#include "scc/sccdefs.h"

using namespace kestrel::scc;

extern "C" {
SCC_EXPORT Long SCC_CALL SccInitialize(void** context, WindowHandle window, const char* caller, char* sccName,
                                       Long* capabilities, char* auxPathLabel, Long* checkOutCommentLength,
                                       Long* commentLength);
SCC_EXPORT Long SCC_CALL SccGet(void* context, WindowHandle window, Long count, const char** names,
                                Long flags, void* options);
}

[[maybe_unused]] static const int rounding = std::fesetround(FE_UPWARD);

Long SCC_CALL SccInitialize(void** context, WindowHandle, const char*, char* sccName, Long* capabilities,
                            char*, Long*, Long*) {
  static int state;
  *context = &state;
  *capabilities = SCC_CAP_REMOVE;
  sccName[4096] = 'x';
  return SCC_OK;
}

Long SCC_CALL SccGet(void*, WindowHandle, Long, const char**, Long, void*) { return SCC_OK; }
