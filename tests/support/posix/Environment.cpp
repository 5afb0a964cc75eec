#include "support/Environment.h"

void SetEnvironment(const char* name, const char* value) { value ? setenv(name, value, 1) : unsetenv(name); }
