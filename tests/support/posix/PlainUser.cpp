#include "support/PlainUser.h"

#include <unistd.h>

namespace kestrel {

TPlainUser::TPlainUser() {
  constexpr uid_t kNobody = 65534;
  changed_ = geteuid() == 0 && seteuid(kNobody) == 0;
}

TPlainUser::~TPlainUser() {
  if (changed_ && seteuid(0) != 0) _exit(1);  // nobody could clean up
}

}  // namespace kestrel
