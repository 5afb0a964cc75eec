#include "isolation/host/WindowWatch.h"

#include <algorithm>
#include <map>
#include <utility>

#include "isolation/host/Callbacks.h"
#include "isolation/host/Channel.h"
#include "system/windows/Api.h"

namespace kestrel::isolation {
namespace {

HWND owner = nullptr;
std::map<HWND, HWND>
    owned;  // top-level windows of this thread, each with the owner that it was given or null
std::uint32_t shown = 0;
UINT_PTR repeating = 0;  // the timer's number, while windows are shown

/// Shows the client that the windows respond.
void CALLBACK RepeatShown(HWND, UINT, UINT_PTR, DWORD) {
  if (IsCallRunning()) channel::Write(FrameKind::WindowCount, Serialize(shown));
}

void ReportShown() {
  const auto now = static_cast<std::uint32_t>(
      std::ranges::count_if(owned, [](const auto& window) { return IsWindowVisible(window.first) != 0; }));
  if (now == shown) return;
  shown = now;
  channel::Write(FrameKind::WindowCount, Serialize(shown));
  if (shown == 0)
    KillTimer(nullptr, std::exchange(repeating, 0));
  else if (repeating == 0)
    repeating = SetTimer(nullptr, 0, static_cast<UINT>(kWindowCountInterval.count()), RepeatShown);
}

bool IsTopLevel(HWND window) {
  return GetAncestor(window, GA_ROOT) == window && (GetWindowLongPtrW(window, GWL_STYLE) & WS_CAPTION) != 0;
}

/// Gives a window without an owner that of the client and disables the latter, as toolkits do for modal dialogs within a
/// process.
void SetOwner(HWND window) {
  if (!IsTopLevel(window) || owned.contains(window)) return;
  const bool alone = GetWindow(window, GW_OWNER) == nullptr && owner != nullptr;
  owned[window] = alone ? owner : nullptr;
  if (!alone) return;
  SetWindowLongPtrW(window, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
  EnableWindow(owner, FALSE);
}

void RestoreOwner(HWND window) {
  const auto known = owned.find(window);
  if (known == owned.end()) return;
  if (known->second != nullptr) EnableWindow(known->second, TRUE);
  owned.erase(known);
}

LRESULT CALLBACK OnWindow(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_ACTIVATE) SetOwner(reinterpret_cast<HWND>(wParam));
  if (code == HCBT_DESTROYWND) RestoreOwner(reinterpret_cast<HWND>(wParam));
  if (code == HCBT_ACTIVATE || code == HCBT_DESTROYWND) ReportShown();
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

scc::WindowHandle SetOwnerWindow(std::uint64_t window) {
  owner = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));
  return owner;
}

void WatchWindows() { SetWindowsHookExW(WH_CBT, OnWindow, nullptr, GetCurrentThreadId()); }

}  // namespace kestrel::isolation
