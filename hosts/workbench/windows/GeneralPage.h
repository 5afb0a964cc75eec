// The workbench's own page of the options dialog.
#pragma once

#include "host/Options.h"

/// Its fields are those of the property set kGeneralSet.
TOptionsPage GeneralOptionsPage();
