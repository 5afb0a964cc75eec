// Texts of the "Team" menu.
#pragma once

#include "host/Text.h"

inline constexpr TResString sTeam{"Team"};
inline constexpr TResString sSeparator{"-"};

// Captions of actions.
inline constexpr TResString sActPlaceProject{"Map project to Source Control..."};
inline constexpr TResString sActPullProject{"Pull Project from Source Control..."};
inline constexpr TResString sActAddFiles{"Add Files..."};
inline constexpr TResString sActRemoveFiles{"Remove Files..."};
inline constexpr TResString sActCheckInFiles{"Check In Files..."};
inline constexpr TResString sActCheckOutFiles{"Check Out Files..."};
inline constexpr TResString sActUndoCheckOutFiles{"Undo Check Out Files..."};
inline constexpr TResString sActRunSccApp{"Run Scc Application"};
inline constexpr TResString sActCommitBrowser{"File Explorer"};
inline constexpr TResString sActMessages{"Messages"};

// Captions of items that differ from their action's, or that have none.
inline constexpr TResString sItemCommitBrowser{"Commit Browser..."};
inline constexpr TResString sItemPlaceProject{"Place Project Into Source Control..."};
inline constexpr TResString sItemShowDifferences{"Show Differences..."};
inline constexpr TResString sItemGetFiles{"Get Latest Version"};
inline constexpr TResString sItemShowHistory{"Show History..."};

// What a handler writes when its command ends early; %s is the reason.
inline constexpr TResString sMainMenuError{"MainMenu; %s"};
inline constexpr TResString sPlaceProjectError{"PlaceProjectClick; %s"};
inline constexpr TResString sPullProjectError{"PullProjectClick; %s"};
inline constexpr TResString sAddFilesError{"AddFilesClick; %s"};
inline constexpr TResString sRemoveFilesError{"RemoveFilesClick; %s"};
inline constexpr TResString sGetLatestVersionError{"GetLatestVersionClick; %s"};
inline constexpr TResString sCheckFilesInError{"CheckFilesInClick; %s"};
inline constexpr TResString sCheckFilesOutError{"CheckFilesOutClick; %s"};
inline constexpr TResString sUndoFilesCheckOutError{"UndoFilesCheckOutClick; %s"};
inline constexpr TResString sRunSccAppError{"RunSccAppClick; %s"};
inline constexpr TResString sCommitBrowserError{"CommitBrowserClick; %s"};
inline constexpr TResString sMessagesError{"MessagesClick; %s"};
inline constexpr TResString sShowDiffError{"ShowDiffClick; %s"};
inline constexpr TResString sShowHistoryError{"ShowHistoryClick; %s"};
