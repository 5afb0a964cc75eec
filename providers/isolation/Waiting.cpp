#include "Waiting.h"

using namespace std::chrono_literals;

namespace isolation {

void Until(const Wait& wait) {
  while (!wait.Step(1h)) {
  }
}

}  // namespace isolation
