#include "system/System.h"

namespace kestrel {

// A terminal takes what is printed as it is, and every program has the one that it was started from.
void PrepareConsole() {}

}  // namespace kestrel
