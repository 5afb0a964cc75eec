#include "subversion/svn/Events.h"

namespace kestrel::svnscc {

void EventQueue::Told(const std::string& path, scc::Long bits) {
  told_[path] = bits;
  pending_.erase(path);
}

void EventQueue::Found(const std::string& path, scc::Long bits) {
  const auto told = told_.find(path);
  if (!enabled_ || told == told_.end()) return;
  if (told->second == bits) {
    pending_.erase(path);
  } else if (pending_.insert_or_assign(path, bits).second) {
    order_.push_back(path);
  }
}

void EventQueue::Found(const StatusTable& table) {
  for (const auto& [path, bits] : told_) Found(path, table.Of(path).Bits);
}

std::optional<EventQueue::Event> EventQueue::Take() {
  while (!order_.empty()) {
    const std::string path = std::move(order_.front());
    order_.pop_front();
    const auto pending = pending_.find(path);
    if (pending == pending_.end()) continue;
    Event event{path, pending->second};
    Told(path, event.Bits);
    return event;
  }
  return std::nullopt;
}

void EventQueue::Clear() {
  told_.clear();
  pending_.clear();
  order_.clear();
}

}  // namespace kestrel::svnscc
