// Texts of the wizard that places a project.
#pragma once

#include "host/Text.h"

constexpr TResString sPlaceStep{"Place project Wizard: Step %d of %d"};
constexpr TResString sPlaceStatusPage{"Place project Wizard: Status page"};
constexpr TResString sPlaceNoProvider{"Unable to place project, provider not assigned"};
constexpr TResString sPlaceInitializing{"Initializing Project %s"};
constexpr TResString sPlaceAddOk{"Add %s: ok"};
constexpr TResString sPlaceAddFailed{"Add %s: failed"};
constexpr TResString sPlaceReason{"      %s"};  // stands under the line above
constexpr TResString sPlaceSucceeded{"Succeeded"};
constexpr TResString sPlaceStopped{"Stopped. Files that were not added: %d. Team | Add Files... adds them."};

// Controls.
constexpr TResString sPlaceSelectFiles{"Select files for initial check-in"};
constexpr TResString sPlaceCheckOutAfterAdd{"Check files out after add"};
constexpr TResString sPlaceStatus{"Place project status"};
