// Texts of the add-in object.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

// Identity.
inline constexpr TResString sCompanyName{"Corvane Software"};
inline constexpr TResString sWizardName{"Pull project wizard"};
inline constexpr TResString sAuthorsName{"Corvane"};
inline constexpr TResString sWizardDescription{"Pull a project from a source code control manager"};

// Start-up.
inline constexpr TResString sStartUp{"SccExpert; Quillon 7 Source Code Control Interface"};
inline constexpr TResString sProviderLine{"Provider: %s"};
inline constexpr TResString sExpertCreateError{"Expert create error: %s"};
inline constexpr TResString sMessageWindowNil{"Message window is nil"};

// Lines of routines that catch their own errors; %s is the error's message.
inline constexpr TResString sReadSettingsError{"ReadSettings; %s"};  // ReadProjectSettings shares it
inline constexpr TResString sReadDefaultProviderError{"ReadDefaultProvider; %s"};
inline constexpr TResString sUpdateSCCIniFileError{"UpdateSCCIniFile; %s"};
inline constexpr TResString sReadSCCIniFileError{"ReadSCCIniFile; %s"};
inline constexpr TResString sProjectExistsError{"ProjectExists exception: %s"};
inline constexpr TResString sFileNotificationError{"FileNotification; %s"};
inline constexpr TResString sViewChangeError{"ViewChange: %s"};

// Projects.
inline constexpr TResString sProviderNotAssigned{
    "AProvider not assigned"};  // named after the field; intentional
inline constexpr TResString sProviderNotInstalled{"The source code control provider \"%s\" is not installed"};
inline constexpr TResString sNoMatchingPath{"Unable to set current project, no matching path"};
inline constexpr TResString sNoProjectFile{"No project or package file found in current project"};
inline constexpr TResString sOpenProject{"Open Project"};
inline constexpr TResString sInvalidUserName{"Invalid username, unable to open provider project"};
inline constexpr TResString sUnknownOpenError{"Unknown error, unable to open provider project"};
inline constexpr TResString sOpenAgain{"%s is connected to its source control provider again"};
inline constexpr TResString sCloseProject{"CloseProject"};

// Commands.
inline constexpr TResString sGetFilesNoProvider{"Unable to get files, provider not assigned"};
inline constexpr TResString sAddRemoveNoProvider{"Unable to populate list add/remove, provider not assigned"};
inline constexpr TResString sSccPopulateList{"SccPopulateList"};
inline constexpr TResString sShowDiff{"Show Diff"};
inline constexpr TResString sShowHistory{"Show History"};
inline constexpr TResString sProperties{"Properties"};
inline constexpr TResString sSaveAllFailed{
    // "Unkown" is intentional: users search for this message
    "Project and project related files must be saved before mapping: Unkown save error."};
inline constexpr TResString sPulledNotOpened{"%s could not be opened"};
inline constexpr TResString sFailure{"%s: %s"};
inline constexpr TResString sFileNotSaved{
    "%s has unsaved changes and could not be saved. Nothing was done with it."};
inline constexpr TResString sCommentsNotStored{"The comments could not be stored: %s"};
inline constexpr TResString sCommandRunning{"Another source control command is still running"};

}  // namespace kestrel::addin
