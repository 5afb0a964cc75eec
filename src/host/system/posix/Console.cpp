#include "system/System.h"

namespace kestrel {

// Nothing to do on POSIX.
void PrepareConsole() {}

}  // namespace kestrel
