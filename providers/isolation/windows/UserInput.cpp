#include "isolation/UserInput.h"

#include <utility>

#include "system/windows/Api.h"

namespace kestrel::isolation {

void DiscardUserInput() {
  MSG message;
  for (const auto& [first, last] :
       {std::pair<UINT, UINT>{WM_KEYFIRST, WM_KEYLAST}, {WM_LBUTTONDOWN, WM_MOUSELAST}})
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) {
    }
}

}  // namespace kestrel::isolation
