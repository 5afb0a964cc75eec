// The host's object model: abstract interfaces found by identifier, as every run-time package of the IDE sees them.
#pragma once

#include <array>
#include <cstdint>

namespace kestrel {

/// An interface identifier, in the usual {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX} order.
struct TGuid {
  std::uint32_t D1;
  std::uint16_t D2;
  std::uint16_t D3;
  std::array<std::uint8_t, 8> D4;
  bool operator==(const TGuid&) const = default;
};

/// Base of every interface of the host.  All calls are made on the user-interface thread.
class IInterface {
 public:
  IInterface() = default;
  IInterface(const IInterface&) = delete;
  IInterface& operator=(const IInterface&) = delete;
  virtual ~IInterface() = default;

  /// The address of this object's sub-object for `iid`, or nullptr.  Borrowed: valid as long as the object.
  /// Callers use Supports<T>() below; implementations use FindInterface<...>().
  virtual void* QueryInterface(const TGuid& iid) noexcept = 0;
};

/// Asks `object` (may be nullptr) for interface T; nullptr when it has none.
template <class T>
T* Supports(IInterface* object) {
  return object ? static_cast<T*>(object->QueryInterface(T::IID)) : nullptr;
}

/// Body of a QueryInterface: the first of Interfaces... whose identifier is `iid`.
template <class... Interfaces, class Self>
void* FindInterface(Self* self, const TGuid& iid) noexcept {
  void* found = nullptr;
  static_cast<void>(((Interfaces::IID == iid && (found = static_cast<Interfaces*>(self))) || ...));
  return found;
}

}  // namespace kestrel
