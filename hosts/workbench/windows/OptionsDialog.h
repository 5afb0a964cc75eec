// Tools > Options: the workbench's own page and those of add-ins.
#pragma once

#include "workbench/model/Settings.h"

class wxWindow;

namespace kestrel::workbench {

/// Shows the dialog; true when it was accepted and everything is stored.  Cancel leaves all settings as they were.
bool ShowOptionsDialog(wxWindow* parent, TOptionsServices& options, const TPackageCaller& caller);

}  // namespace kestrel::workbench
