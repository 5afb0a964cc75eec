// Texts of the wizard that places a project.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sPlaceStep{"Place project Wizard: Step %d of %d"};
inline constexpr TResString sPlaceStatusPage{"Place project Wizard: Status page"};
inline constexpr TResString sPlaceNoProvider{"Unable to place project, provider not assigned"};
inline constexpr TResString sPlaceInitializing{"Initializing Project %s"};
inline constexpr TResString sPlaceAddOk{"Add %s: ok"};
inline constexpr TResString sPlaceAddFailed{"Add %s: failed"};
inline constexpr TResString sPlaceReason{"      %s"};  // below the previous line
inline constexpr TResString sPlaceSucceeded{"Succeeded"};
inline constexpr TResString sPlaceStopped{
    "Stopped. Files that were not added: %d. Team | Add Files... adds them."};

// Controls.
inline constexpr TResString sPlaceSelectFiles{"Select files for initial check-in"};
inline constexpr TResString sPlaceCheckOutAfterAdd{"Check files out after add"};
inline constexpr TResString sPlaceStatus{"Place project status"};

}  // namespace kestrel::addin
