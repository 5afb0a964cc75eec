#include "support/Environment.h"

namespace kestrel {

void SetEnvironment(const char* name, const char* value) { value ? setenv(name, value, 1) : unsetenv(name); }

}  // namespace kestrel
