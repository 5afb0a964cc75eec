// The workbench's page of the options dialog.
#pragma once

#include "host/Options.h"

namespace kestrel::workbench {

/// Edits the property set kGeneralSet.
TOptionsPage GeneralOptionsPage();

}  // namespace kestrel::workbench
