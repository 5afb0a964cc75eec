// The provider's side of ProviderWindows.h.
#pragma once

#include <wx/timer.h>
#include <wx/uiaction.h>

#include <memory>
#include <string>

#include "workbench/macro/MessageBoxes.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"

namespace kestrel::workbench {

/// Polls for steps and executes them while it exists.
class TProviderWindowServer final : public wxTimer {
 public:
  explicit TProviderWindowServer(const std::string& folder);
  ~TProviderWindowServer() override;
  void Notify() override;

 private:
  void ShowFront();
  void Answer(const std::string& result);

  std::string folder_;
  std::string front_;
  bool working_ = false;
  std::unique_ptr<wxUIActionSimulator> input_;  // created by the first step that needs it
  TModalStack modals_;
  TOpenMenus menus_;
  TMessageBoxes boxes_;
};

}  // namespace kestrel::workbench
