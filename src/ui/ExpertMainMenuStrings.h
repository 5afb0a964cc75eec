// Texts of the "Team" menu.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

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
inline constexpr TResString sGetLatestVersion{"Get Latest Version"};

// Captions of items without an action, and of two that intentionally differ from their action's.
inline constexpr TResString sItemCommitBrowser{"Commit Browser..."};
inline constexpr TResString sItemPlaceProject{"Place Project Into Source Control..."};
inline constexpr TResString sItemShowDifferences{"Show Differences..."};
inline constexpr TResString sItemShowHistory{"Show History..."};

// The file menu shares the other captions.
inline constexpr TResString sItemProperties{"Properties..."};

// Names of the pictures added to the host's image list.
inline constexpr TResString sSCC0{"SCC0"};
inline constexpr TResString sSCC1{"SCC1"};
inline constexpr TResString sSCC2{"SCC2"};
inline constexpr TResString sSCC3{"SCC3"};
inline constexpr TResString sSCC4{"SCC4"};
inline constexpr TResString sSCC5{"SCC5"};
inline constexpr TResString sSCC6{"SCC6"};
inline constexpr TResString sSCC7{"SCC7"};
inline constexpr TResString sSCC8{"SCC8"};

inline constexpr TResString sUnableToGetIDEServices{"Unable to get IDE services"};

// Line of a handler whose command failed; %s is the reason.
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
inline constexpr TResString sPropertiesError{"PropertiesClick; %s"};

}  // namespace kestrel::addin
