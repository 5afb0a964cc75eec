// Texts that the windows of both wizards share.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sWizardBack{"< &Back"};
inline constexpr TResString sWizardCancel{"Cancel"};
inline constexpr TResString sWizardBrowse{"..."};
inline constexpr TResString sSelectProvider{"Select a Source Control Manager"};
inline constexpr TResString sNoProvidersNotice{
    "There is no source control manager that this wizard could work with. The help (F1) tells how to install "
    "one."};
inline constexpr TResString sSelectProject{"Select Source Control project"};
inline constexpr TResString sBrowseProjectHint{"Choose the project in the source control manager"};

}  // namespace kestrel::addin
