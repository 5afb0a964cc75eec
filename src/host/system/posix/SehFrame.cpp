#include "system/SehFrame.h"

namespace kestrel {

std::string CallWithSehFrame(void (*body)(void* data), void* data) {
  body(data);
  return {};
}

}  // namespace kestrel
