// Facts and versioned properties of a file or folder, as texts that can be selected and copied.
#pragma once

#include "common/text/Properties.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

class PropertiesWindow : public ToolWindow {
 public:
  PropertiesWindow(wxWindow* parent, const std::string& name, NodeProperties description);

 private:
  wxSizer* CreateFacts();
  wxSizer* CreateProperties();

  NodeProperties description_;
  RowList* list_ = nullptr;
  wxTextCtrl* value_ = nullptr;
};

}  // namespace kestrel
