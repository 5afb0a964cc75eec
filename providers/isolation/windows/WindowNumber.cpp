#include "WindowNumber.h"

#include <wx/window.h>

#include "host/windows/Api.h"

namespace isolation {

std::uint64_t WindowNumber(scc::WindowHandle given, wxWindow* front) {
  AllowSetForegroundWindow(ASFW_ANY);  // the provider's window comes in front of this program's
  HWND window = static_cast<HWND>(given);
  if (!IsWindow(window)) window = front != nullptr ? static_cast<HWND>(front->GetHandle()) : nullptr;
  return reinterpret_cast<std::uintptr_t>(window);
}

}  // namespace isolation
