#include "HostOwner.h"

#include <algorithm>
#include <map>

#include "Link.h"
#include "host/windows/Api.h"

namespace isolation {
namespace {

HWND owner = nullptr;
std::map<HWND, HWND> owned;  // windows of this thread that were given an owner, and that
std::uint32_t shown = 0;

void TellShown() {
  const auto now = static_cast<std::uint32_t>(
      std::ranges::count_if(owned, [](const auto& window) { return IsWindowVisible(window.first) != 0; }));
  if (now == shown) return;
  shown = now;
  link::Write(Kind::Windows, Body(shown));
}

bool IsOwn(HWND window) {
  return GetAncestor(window, GA_ROOT) == window && (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) != 0;
}

/// A window without an owner gets the client's, which a modal one disables: the system does both for windows of one
/// process only.
void Adopt(HWND window) {
  if (!IsOwn(window) || owned.contains(window)) return;
  const bool alone = GetWindow(window, GW_OWNER) == nullptr && owner != nullptr;
  owned[window] = alone ? owner : nullptr;
  if (!alone) return;
  SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  EnableWindow(owner, FALSE);
}

void Release(HWND window) {
  const auto known = owned.find(window);
  if (known == owned.end()) return;
  if (known->second != nullptr) EnableWindow(known->second, TRUE);
  owned.erase(known);
}

LRESULT CALLBACK OnWindow(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_ACTIVATE) Adopt(reinterpret_cast<HWND>(wParam));
  if (code == HCBT_DESTROYWND) Release(reinterpret_cast<HWND>(wParam));
  if (code == HCBT_ACTIVATE || code == HCBT_DESTROYWND) TellShown();
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

scc::WindowHandle TakeOwner(std::uint64_t window) {
  owner = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));
  return owner;
}

void WatchWindows() { SetWindowsHookExW(WH_CBT, OnWindow, nullptr, GetCurrentThreadId()); }

}  // namespace isolation
