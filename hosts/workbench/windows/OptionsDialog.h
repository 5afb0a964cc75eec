// Tools > Options: the pages of the workbench and of add-ins.
#pragma once

#include "workbench/model/Settings.h"

class wxWindow;

namespace kestrel::workbench {

/// Shows the dialog; returns true if it was accepted and everything was saved. Cancel changes nothing.
bool ShowOptionsDialog(wxWindow* parent, TOptionsServices& options, const TPackageCaller& caller);

}  // namespace kestrel::workbench
