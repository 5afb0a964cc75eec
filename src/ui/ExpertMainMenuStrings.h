// Texts of the "Team" menu.
#pragma once

#include "host/Text.h"

constexpr TResString sTeam{"Team"};
constexpr TResString sSeparator{"-"};

// Captions of actions.
constexpr TResString sActPlaceProject{"Map project to Source Control..."};
constexpr TResString sActPullProject{"Pull Project from Source Control..."};
constexpr TResString sActAddFiles{"Add Files..."};
constexpr TResString sActRemoveFiles{"Remove Files..."};
constexpr TResString sActCheckInFiles{"Check In Files..."};
constexpr TResString sActCheckOutFiles{"Check Out Files..."};
constexpr TResString sActUndoCheckOutFiles{"Undo Check Out Files..."};
constexpr TResString sActRunSccApp{"Run Scc Application"};
constexpr TResString sActCommitBrowser{"File Explorer"};
constexpr TResString sActMessages{"Messages"};
constexpr TResString sGetLatestVersion{"Get Latest Version"};

// Captions of items without an action, and of two that differ from their action's.  The difference is meant: the menu
// names the window that opens, the host's list of commands what it is for.
constexpr TResString sItemCommitBrowser{"Commit Browser..."};
constexpr TResString sItemPlaceProject{"Place Project Into Source Control..."};
constexpr TResString sItemShowDifferences{"Show Differences..."};
constexpr TResString sItemShowHistory{"Show History..."};

// Items of the menu of one file; the others are called as in the menu above.
constexpr TResString sItemProperties{"Properties..."};

// Names of the pictures that the pictured commands bring into the host's image list.
constexpr TResString sSCC0{"SCC0"};
constexpr TResString sSCC1{"SCC1"};
constexpr TResString sSCC2{"SCC2"};
constexpr TResString sSCC3{"SCC3"};
constexpr TResString sSCC4{"SCC4"};
constexpr TResString sSCC5{"SCC5"};
constexpr TResString sSCC6{"SCC6"};
constexpr TResString sSCC7{"SCC7"};
constexpr TResString sSCC8{"SCC8"};

constexpr TResString sUnableToGetIDEServices{"Unable to get IDE services"};

// What a handler writes when its command ends early; %s is the reason.
constexpr TResString sMainMenuError{"MainMenu; %s"};
constexpr TResString sPlaceProjectError{"PlaceProjectClick; %s"};
constexpr TResString sPullProjectError{"PullProjectClick; %s"};
constexpr TResString sAddFilesError{"AddFilesClick; %s"};
constexpr TResString sRemoveFilesError{"RemoveFilesClick; %s"};
constexpr TResString sGetLatestVersionError{"GetLatestVersionClick; %s"};
constexpr TResString sCheckFilesInError{"CheckFilesInClick; %s"};
constexpr TResString sCheckFilesOutError{"CheckFilesOutClick; %s"};
constexpr TResString sUndoFilesCheckOutError{"UndoFilesCheckOutClick; %s"};
constexpr TResString sRunSccAppError{"RunSccAppClick; %s"};
constexpr TResString sCommitBrowserError{"CommitBrowserClick; %s"};
constexpr TResString sMessagesError{"MessagesClick; %s"};
constexpr TResString sShowDiffError{"ShowDiffClick; %s"};
constexpr TResString sShowHistoryError{"ShowHistoryClick; %s"};
constexpr TResString sPropertiesError{"PropertiesClick; %s"};
