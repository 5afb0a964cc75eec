// A library that is no provider at all.
#include "scc/sccdefs.h"

extern "C" SCC_EXPORT int NotAProvider();
int NotAProvider() { return 0; }
