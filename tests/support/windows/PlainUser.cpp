#include "support/PlainUser.h"

TPlainUser::TPlainUser() = default;
TPlainUser::~TPlainUser() = default;
