// The host's object model: abstract interfaces that packages query by identifier.
#pragma once

#include <array>
#include <cstdint>

namespace kestrel {

/// An interface identifier, in the order {XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}.
struct TGuid {
  std::uint32_t D1;
  std::uint16_t D2;
  std::uint16_t D3;
  std::array<std::uint8_t, 8> D4;
  bool operator==(const TGuid&) const = default;
};

/// Base of all interfaces of the host.  All calls are made on the user-interface thread.
class IInterface {
 public:
  IInterface() = default;
  IInterface(const IInterface&) = delete;
  IInterface& operator=(const IInterface&) = delete;
  virtual ~IInterface() = default;

  /// The address of this object's sub-object for `iid`, or null.  Valid as long as the object.  Callers use
  /// Supports<T>(), implementations FindInterface<...>().
  virtual void* QueryInterface(const TGuid& iid) noexcept = 0;
};

/// Queries `object` (may be null) for interface T; null if it does not implement it.
template <class T>
T* Supports(IInterface* object) {
  return object ? static_cast<T*>(object->QueryInterface(T::IID)) : nullptr;
}

/// Implements QueryInterface(): the first of Interfaces... with identifier `iid`, or null.
template <class... Interfaces, class Self>
void* FindInterface(Self* self, const TGuid& iid) noexcept {
  void* found = nullptr;
  static_cast<void>(((Interfaces::IID == iid && (found = static_cast<Interfaces*>(self))) || ...));
  return found;
}

}  // namespace kestrel
