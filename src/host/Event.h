// An event of the host with any number of handlers.
#pragma once

#include <functional>
#include <map>
#include <utility>

namespace kestrel {

/// Handlers run in the order they were subscribed.  A handler may unsubscribe itself or others while it runs.
template <class... Args>
class TEvent {
 public:
  using THandler = std::function<void(Args...)>;

  /// Returns the cookie for Unsubscribe(); cookies are never reused.
  int Subscribe(THandler handler) {
    handlers_.emplace(next_, std::move(handler));
    return next_++;
  }
  void Unsubscribe(int cookie) { handlers_.erase(cookie); }

  void Fire(Args... args) const {
    const auto snapshot = handlers_;
    for (const auto& [cookie, handler] : snapshot)
      if (handlers_.contains(cookie)) handler(args...);
  }

 private:
  std::map<int, THandler> handlers_;
  int next_ = 0;
};

}  // namespace kestrel
