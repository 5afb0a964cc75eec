#include "isolation/Wire.h"

#include <cstring>

namespace kestrel::isolation {

const char* NameOf(EntryPoint entry) {
  static constexpr const char* kNames[] = {
#define SCC_ENTRY_ARGUMENTS(name, ...) #name,
#include "isolation/entry_arguments.def"
#undef SCC_ENTRY_ARGUMENTS
  };
  return entry < EntryPoint::Count ? kNames[static_cast<std::size_t>(entry)] : "";
}

void NameList::Add(const char* name) {
  ++count_;
  bytes_.push_back(name != nullptr ? '\1' : '\0');
  if (name != nullptr) bytes_.insert(bytes_.end(), name, name + std::strlen(name));
  bytes_.push_back('\0');
}

std::vector<const char*> NameList::Pointers() const {
  std::vector<const char*> pointers;
  if (count_ > bytes_.size()) throw WireError("more names than bytes");
  pointers.reserve(count_ + 1);
  const char* next = bytes_.data();
  const char* const end = next + bytes_.size();
  for (std::uint32_t i = 0; i < count_; ++i) {
    const auto* stop =
        next < end
            ? static_cast<const char*>(std::memchr(next + 1, 0, static_cast<std::size_t>(end - next - 1)))
            : nullptr;
    if (stop == nullptr) throw WireError("name without an end");
    pointers.push_back(*next != 0 ? next + 1 : nullptr);
    next = stop + 1;
  }
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace kestrel::isolation
