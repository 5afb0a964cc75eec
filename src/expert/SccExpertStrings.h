// Texts of the add-in object.
#pragma once

#include "host/Text.h"

// Identity.
constexpr TResString sCompanyName{"Corvane Software"};
constexpr TResString sWizardName{"Pull project wizard"};
constexpr TResString sAuthorsName{"Corvane"};
constexpr TResString sWizardDescription{"Pull a project from a source code control manager"};

// Start-up.
constexpr TResString sStartUp{"SccExpert; Quillon 7 Source Code Control Interface"};
constexpr TResString sProviderLine{"Provider: %s"};
constexpr TResString sExpertCreateError{"Expert create error: %s"};
constexpr TResString sMessageWindowNil{"Message window is nil"};

// Lines of routines that catch their own errors; %s is the error's message.
constexpr TResString sReadSettingsError{"ReadSettings; %s"};  // ReadProjectSettings shares it
constexpr TResString sReadDefaultProviderError{"ReadDefaultProvider; %s"};
constexpr TResString sUpdateSCCIniFileError{"UpdateSCCIniFile; %s"};
constexpr TResString sReadSCCIniFileError{"ReadSCCIniFile; %s"};
constexpr TResString sProjectExistsError{"ProjectExists exception: %s"};
constexpr TResString sFileNotificationError{"FileNotification; %s"};
constexpr TResString sViewChangeError{"ViewChange: %s"};

// Projects.
constexpr TResString sProviderNotAssigned{"AProvider not assigned"};  // named like the field, which is meant
constexpr TResString sProviderNotInstalled{"The source code control provider \"%s\" is not installed"};
constexpr TResString sNoMatchingPath{"Unable to set current project, no matching path"};
constexpr TResString sNoProjectFile{"No project or package file found in current project"};
constexpr TResString sOpenProject{"Open Project"};
constexpr TResString sInvalidUserName{"Invalid username, unable to open provider project"};
constexpr TResString sUnknownOpenError{"Unknown error, unable to open provider project"};
constexpr TResString sCloseProject{"CloseProject"};

// Commands.
constexpr TResString sGetFilesNoProvider{"Unable to get files, provider not assigned"};
constexpr TResString sAddRemoveNoProvider{"Unable to populate list add/remove, provider not assigned"};
constexpr TResString sSccPopulateList{"SccPopulateList"};
constexpr TResString sShowDiff{"Show Diff"};
constexpr TResString sShowHistory{"Show History"};
constexpr TResString sProperties{"Properties"};
constexpr TResString sSaveAllFailed{
    // "Unkown" is meant: the message is known and searched for by it
    "Project and project related files must be saved before mapping: Unkown save error."};
constexpr TResString sPulledNotOpened{"%s could not be opened"};
constexpr TResString sFailure{"%s: %s"};
constexpr TResString sFileNotSaved{
    "%s has unsaved changes and could not be saved. Nothing was done with it."};
constexpr TResString sCommentsNotStored{"The comments could not be stored: %s"};
constexpr TResString sCommandRunning{"Another source control command is still running"};
