// Texts of the workbench's windows.
#pragma once

#include "system/Text.h"

namespace kestrel::workbench {

inline constexpr TResString sProgramName{"Workbench"};
inline constexpr TResString sFrameTitle{"%s - Workbench"};
inline constexpr TResString sAboutText{
    "Workbench %s\nA small IDE that hosts run-time packages.\n\nLoaded packages:\n%s"};
inline constexpr TResString sProgramHelp{"A small IDE that loads run-time packages."};
inline constexpr TResString sHelpHelp{"Print this help"};
inline constexpr TResString sVersionHelp{"Print the version"};
inline constexpr TResString sVersion{"workbench %s"};
inline constexpr TResString sWrongUsage{"workbench: %s\nRun with --help for more information.\n"};
inline constexpr TResString sNoDisplay{
    "workbench: no display; run under Xvfb (for example: xvfb-run -a workbench ...)"};
inline constexpr TResString sCommandRunning{
    "The workbench cannot be closed while a command is running. Finish the command, or close its window, "
    "first."};

inline constexpr TResString sMenuFile{"&File"};
inline constexpr TResString sMenuNew{"&New"};
inline constexpr TResString sMenuRecent{"Open &Recent"};
inline constexpr TResString sNoRecent{"No recent projects"};
inline constexpr TResString sMenuEdit{"&Edit"};
inline constexpr TResString sMenuSearch{"&Search"};
inline constexpr TResString sMenuView{"&View"};
inline constexpr TResString sMenuProject{"&Project"};
inline constexpr TResString sMenuTools{"T&ools"};
inline constexpr TResString sMenuHelp{"&Help"};

inline constexpr TResString sNewUnit{"&Unit\tCtrl+N"};
inline constexpr TResString sNewProject{"&Project..."};
inline constexpr TResString sNewOther{"&Other..."};
inline constexpr TResString sOpen{"&Open...\tCtrl+O"};
inline constexpr TResString sOpenProject{"Open Pro&ject...\tCtrl+F11"};
inline constexpr TResString sReload{"Re&load from Disk"};
inline constexpr TResString sSave{"&Save\tCtrl+S"};
inline constexpr TResString sSaveAs{"Save &As..."};
inline constexpr TResString sSaveAll{"Save A&ll\tCtrl+Shift+S"};
inline constexpr TResString sClose{"&Close\tCtrl+W"};
inline constexpr TResString sCloseAll{"Clos&e All"};
inline constexpr TResString sExit{"E&xit\tCtrl+Q"};

inline constexpr TResString sUndo{"&Undo\tCtrl+Z"};
inline constexpr TResString sRedo{"&Redo\tCtrl+Shift+Z"};
inline constexpr TResString sCut{"Cu&t\tCtrl+X"};
inline constexpr TResString sCopy{"&Copy\tCtrl+C"};
inline constexpr TResString sPaste{"&Paste\tCtrl+V"};
inline constexpr TResString sSelectAll{"Select &All\tCtrl+A"};

inline constexpr TResString sFind{"&Find...\tCtrl+F"};
inline constexpr TResString sFindNext{"Find &Next\tF3"};
inline constexpr TResString sReplace{"&Replace...\tCtrl+R"};
inline constexpr TResString sGoToLine{"&Go to Line...\tCtrl+G"};

inline constexpr TResString sViewTree{"&Project Tree\tCtrl+Alt+F11"};
inline constexpr TResString sViewMessages{"&Messages\tCtrl+Alt+M"};
inline constexpr TResString sToggleForm{"Toggle &Form/Unit\tF12"};
inline constexpr TResString sNextEditor{"&Next Editor\tCtrl+F6"};

inline constexpr TResString sAddToProject{"&Add to Project...\tShift+F11"};
inline constexpr TResString sRemoveFromProject{"&Remove from Project"};
inline constexpr TResString sAddProject{"Add &Existing Project..."};
inline constexpr TResString sSetActive{"&Set Active Project"};
inline constexpr TResString sCloseProject{"&Close Project"};
inline constexpr TResString sSaveGroupAs{"Save Project &Group As..."};

inline constexpr TResString sCommands{"&Commands...\tCtrl+Shift+P"};
inline constexpr TResString sOptions{"&Options..."};
inline constexpr TResString sContents{"&Contents\tF1"};
inline constexpr TResString sAbout{"&About Workbench"};

inline constexpr TResString sMessagesCopy{"&Copy"};
inline constexpr TResString sMessagesClear{"C&lear"};
inline constexpr TResString sProjectTreeCaption{"Projects"};
inline constexpr TResString sMessagesCaption{"Messages"};
inline constexpr TResString sNoOpenProject{"No project open"};

inline constexpr TResString sReadOnlyState{"Read-only"};
inline constexpr TResString sModifiedState{"Modified"};
inline constexpr TResString sPosition{"Ln %d, Col %d"};
inline constexpr TResString sCannotType{"%s is read-only: check it out, or make it writable, to change it."};
inline constexpr TResString sSaved{"%s saved."};
inline constexpr TResString sNotFoundText{"\"%s\" was not found."};
inline constexpr TResString sReplacedCount{"%d occurrences replaced."};
inline constexpr TResString sGoToPrompt{"Line number (1 to %d):"};
inline constexpr TResString sGoToTitle{"Go to Line"};
inline constexpr TResString sAddedFiles{"%d files added to the project."};

inline constexpr TResString sAskSave{"Save changes to %s?"};
inline constexpr TResString sAskSaveHint{"Your changes are lost if you don't save them."};
inline constexpr TResString sAskSaveYes{"&Save"};
inline constexpr TResString sAskSaveNo{"Do&n't Save"};
inline constexpr TResString sAskReload{"%s has changed on disk."};
inline constexpr TResString sAskReloadHint{"Reload it and lose the changes you made here?"};
inline constexpr TResString sAskReloadYes{"&Reload"};
inline constexpr TResString sAskReloadNo{"&Keep Mine"};

inline constexpr TResString sAskCheckOut{"%s is read-only."};
inline constexpr TResString sAskCheckOutHint{"Check out now?"};
inline constexpr TResString sAskCheckOutYes{"Check &Out"};
inline constexpr TResString sAskCheckOutNo{"&Leave Read-Only"};

inline constexpr TResString sAllFilesFilter{
    "All workbench files|*.pas;*.kfm;*.qvxproj;*.qvxgroup|Units (*.pas)|*.pas|Forms (*.kfm)|*.kfm|"
    "Projects (*.qvxproj;*.qvxgroup)|*.qvxproj;*.qvxgroup|All files|*"};
inline constexpr TResString sProjectFilter{"Projects and groups (*.qvxproj;*.qvxgroup)|*.qvxproj;*.qvxgroup"};
inline constexpr TResString sOneProjectFilter{"Projects (*.qvxproj)|*.qvxproj"};
inline constexpr TResString sGroupFilter{"Project groups (*.qvxgroup)|*.qvxgroup"};
inline constexpr TResString sUnitFilter{"Units (*.pas)|*.pas|All files|*"};
inline constexpr TResString sOpenTitle{"Open"};
inline constexpr TResString sOpenProjectTitle{"Open Project"};
inline constexpr TResString sNewProjectTitle{"New Project"};
inline constexpr TResString sSaveAsTitle{"Save As"};
inline constexpr TResString sAddToProjectTitle{"Add to Project"};
inline constexpr TResString sAddProjectTitle{"Add Existing Project"};

inline constexpr TResString sCommandsTitle{"Commands"};
inline constexpr TResString sCommandsFilter{"&Search"};
inline constexpr TResString sCommandsRun{"&Run"};
inline constexpr TResString sCommandRow{"%s: %s"};

inline constexpr TResString sOptionsTitle{"Options"};
inline constexpr TResString sGeneralPage{"General"};
inline constexpr TResString sFontSizeLabel{"Editor &font size"};
inline constexpr TResString sPackagesLabel{"&Packages, one path per line (loaded at the next start)"};
inline constexpr TResString sCannotSaveOptions{"The options cannot be saved: %s"};

inline constexpr TResString sGalleryTitle{"New Items"};
inline constexpr TResString sGalleryCategories{"&Categories"};
inline constexpr TResString sGalleryItems{"&Items"};
inline constexpr TResString sGalleryEmpty{"There are no items in this category."};
inline constexpr TResString sWizardUnitName{"Unit"};
inline constexpr TResString sWizardUnitComment{"A new unit, added to the active project"};
inline constexpr TResString sWizardProjectName{"Project"};
inline constexpr TResString sWizardProjectComment{"A new, empty project"};

}  // namespace kestrel::workbench
