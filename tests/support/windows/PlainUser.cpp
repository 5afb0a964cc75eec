#include "support/PlainUser.h"

namespace kestrel {

TPlainUser::TPlainUser() = default;
TPlainUser::~TPlainUser() = default;

}  // namespace kestrel
