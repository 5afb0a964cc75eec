// A user for whom files can be unreadable.
#pragma once

namespace kestrel {

/// While it lives, a process of the superuser is nobody's, as far as files go; others stay who they are.
class TPlainUser {
 public:
  TPlainUser();
  TPlainUser(const TPlainUser&) = delete;
  TPlainUser& operator=(const TPlainUser&) = delete;
  ~TPlainUser();

 private:
  bool changed_ = false;
};

}  // namespace kestrel
