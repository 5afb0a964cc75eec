#include "support/Environment.h"

#include <stdlib.h>

namespace kestrel {

void SetEnvironment(const char* name, const char* value) { _putenv_s(name, value ? value : ""); }

}  // namespace kestrel
