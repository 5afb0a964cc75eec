#include "host/Guard.h"

std::string RunGuarded(void (*body)(void* data), void* data) {
  body(data);
  return {};
}
