#include "host/Guard.h"

std::string CallWithSehFrame(void (*body)(void* data), void* data) {
  body(data);
  return {};
}
