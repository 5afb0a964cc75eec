#include "workbench/windows/ModalStack.h"

#include <wx/dialog.h>

namespace kestrel::workbench {

namespace {
TModalStack* theStack = nullptr;
}

TModalStack::TModalStack() {
  theStack = this;
  Register();
}

TModalStack::~TModalStack() { theStack = nullptr; }

wxDialog* TModalStack::Top() {
  return theStack && !theStack->open_.empty() ? theStack->open_.back() : nullptr;
}

int TModalStack::Enter(wxDialog* dialog) {
  open_.push_back(dialog);
  return wxID_NONE;
}

void TModalStack::Exit(wxDialog* dialog) { std::erase(open_, dialog); }

}  // namespace kestrel::workbench
