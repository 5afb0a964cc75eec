// What there is to tell of a file or folder; every text can be selected and copied.
#pragma once

#include "Description.h"
#include "WindowTools.h"

namespace svnscc {

class PropertiesWindow : public ToolWindow {
 public:
  PropertiesWindow(wxWindow* parent, const std::string& name, Description description);

 private:
  wxSizer* CreateFacts();
  wxSizer* CreateProperties();

  Description description_;
  RowList* list_ = nullptr;
  wxTextCtrl* value_ = nullptr;
};

}  // namespace svnscc
