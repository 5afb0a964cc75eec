#include "isolation/WindowId.h"

#include <wx/window.h>

#include "system/windows/Api.h"

namespace kestrel::isolation {

std::uint64_t WindowId(scc::WindowHandle client, wxWindow* fallback) {
  AllowSetForegroundWindow(ASFW_ANY);  // the provider's window comes in front
  HWND window = static_cast<HWND>(client);
  if (!IsWindow(window)) window = fallback != nullptr ? static_cast<HWND>(fallback->GetHandle()) : nullptr;
  return reinterpret_cast<std::uintptr_t>(window);
}

void ReleaseOwner(std::uint64_t window) {
  EnableWindow(reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window)), TRUE);
}

}  // namespace kestrel::isolation
