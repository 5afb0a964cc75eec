// The workbench's own page of the options dialog.
#pragma once

#include "host/Options.h"

namespace kestrel::workbench {

/// Its fields are those of the property set kGeneralSet.
TOptionsPage GeneralOptionsPage();

}  // namespace kestrel::workbench
