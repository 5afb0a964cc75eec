// Texts that the windows of both wizards share.
#pragma once

#include "host/Text.h"

constexpr TResString sWizardBack{"< &Back"};
constexpr TResString sWizardCancel{"Cancel"};
constexpr TResString sWizardBrowse{"..."};
constexpr TResString sSelectProvider{"Select a Source Control Manager"};
constexpr TResString sNoProvidersNotice{
    "There is no source control manager that this wizard could work with. The help tells how to install "
    "one."};
constexpr TResString sSelectProject{"Select Source Control project"};
constexpr TResString sBrowseProjectHint{"Choose the project in the source control manager"};
