#include "subversion/svn/Events.h"

namespace kestrel::svnscc {

void EventQueue::MarkReported(const std::string& path, scc::Long bits) {
  reported_[path] = bits;
  pending_.erase(path);
}

void EventQueue::Update(const std::string& path, scc::Long bits) {
  const auto reported = reported_.find(path);
  if (!enabled_ || reported == reported_.end()) return;
  if (reported->second == bits) {
    pending_.erase(path);
  } else if (pending_.insert_or_assign(path, bits).second) {
    order_.push_back(path);
  }
}

void EventQueue::Update(const StatusTable& table) {
  for (const auto& [path, bits] : reported_) Update(path, table.Of(path).Bits);
}

std::optional<EventQueue::Event> EventQueue::Pop() {
  while (!order_.empty()) {
    const std::string path = std::move(order_.front());
    order_.pop_front();
    const auto pending = pending_.find(path);
    if (pending == pending_.end()) continue;
    Event event{path, pending->second};
    MarkReported(path, event.Bits);
    return event;
  }
  return std::nullopt;
}

void EventQueue::Clear() {
  reported_.clear();
  pending_.clear();
  order_.clear();
}

}  // namespace kestrel::svnscc
