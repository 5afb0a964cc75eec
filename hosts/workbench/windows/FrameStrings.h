// Texts of the workbench's windows.
#pragma once

#include "host/Text.h"

constexpr TResString sProgramName{"Workbench"};
constexpr TResString sFrameTitle{"%s - Workbench"};
constexpr TResString sAboutText{"Workbench %s\nA small IDE that hosts run-time packages."};
constexpr TResString sNoDisplay{
    "workbench: no display; run under Xvfb (for example: xvfb-run -a workbench ...)"};
constexpr TResString sCommandRunning{
    "The workbench cannot be closed while a command is running. Finish the command, or close its window, "
    "first."};
constexpr TResString sNoHelp{"There is no help for %s."};

constexpr TResString sMenuFile{"&File"};
constexpr TResString sMenuNew{"&New"};
constexpr TResString sMenuRecent{"Open &Recent"};
constexpr TResString sNoRecent{"No recent projects"};
constexpr TResString sMenuEdit{"&Edit"};
constexpr TResString sMenuSearch{"&Search"};
constexpr TResString sMenuView{"&View"};
constexpr TResString sMenuProject{"&Project"};
constexpr TResString sMenuTools{"T&ools"};
constexpr TResString sMenuHelp{"&Help"};

constexpr TResString sNewUnit{"&Unit\tCtrl+N"};
constexpr TResString sNewProject{"&Project..."};
constexpr TResString sNewOther{"&Other..."};
constexpr TResString sOpen{"&Open...\tCtrl+O"};
constexpr TResString sOpenProject{"Open Pro&ject...\tCtrl+F11"};
constexpr TResString sReload{"Re&load from Disk"};
constexpr TResString sSave{"&Save\tCtrl+S"};
constexpr TResString sSaveAs{"Save &As..."};
constexpr TResString sSaveAll{"Save A&ll\tCtrl+Shift+S"};
constexpr TResString sClose{"&Close\tCtrl+W"};
constexpr TResString sCloseAll{"Clos&e All"};
constexpr TResString sExit{"E&xit\tCtrl+Q"};

constexpr TResString sUndo{"&Undo\tCtrl+Z"};
constexpr TResString sRedo{"&Redo\tCtrl+Shift+Z"};
constexpr TResString sCut{"Cu&t\tCtrl+X"};
constexpr TResString sCopy{"&Copy\tCtrl+C"};
constexpr TResString sPaste{"&Paste\tCtrl+V"};
constexpr TResString sSelectAll{"Select &All\tCtrl+A"};

constexpr TResString sFind{"&Find...\tCtrl+F"};
constexpr TResString sFindNext{"Find &Next\tF3"};
constexpr TResString sReplace{"&Replace...\tCtrl+R"};
constexpr TResString sGoToLine{"&Go to Line...\tCtrl+G"};

constexpr TResString sViewTree{"&Project Tree\tCtrl+Alt+F11"};
constexpr TResString sViewMessages{"&Messages\tCtrl+Alt+M"};
constexpr TResString sToggleForm{"Toggle &Form/Unit\tF12"};
constexpr TResString sNextEditor{"&Next Editor\tCtrl+F6"};

constexpr TResString sAddToProject{"&Add to Project...\tShift+F11"};
constexpr TResString sRemoveFromProject{"&Remove from Project"};
constexpr TResString sAddProject{"Add &Existing Project..."};
constexpr TResString sSetActive{"&Set Active Project"};
constexpr TResString sCloseProject{"&Close Project"};
constexpr TResString sSaveGroupAs{"Save Project &Group As..."};

constexpr TResString sCommands{"&Commands...\tCtrl+Shift+P"};
constexpr TResString sOptions{"&Options..."};
constexpr TResString sAbout{"&About Workbench"};

constexpr TResString sMessagesCopy{"&Copy"};
constexpr TResString sMessagesClear{"C&lear"};
constexpr TResString sProjectTreeCaption{"Projects"};
constexpr TResString sMessagesCaption{"Messages"};
constexpr TResString sNoOpenProject{"No project open"};

constexpr TResString sReadOnlyState{"Read-only"};
constexpr TResString sModifiedState{"Modified"};
constexpr TResString sPosition{"Ln %d, Col %d"};
constexpr TResString sCannotType{"%s is read-only: check it out, or make it writable, to change it."};
constexpr TResString sSaved{"%s saved."};
constexpr TResString sNotFoundText{"\"%s\" was not found."};
constexpr TResString sReplacedCount{"%d occurrences replaced."};
constexpr TResString sGoToPrompt{"Line number (1 to %d):"};
constexpr TResString sGoToTitle{"Go to Line"};
constexpr TResString sAddedFiles{"%d files added to the project."};

constexpr TResString sAskSave{"Save changes to %s?"};
constexpr TResString sAskSaveHint{"Your changes are lost if you don't save them."};
constexpr TResString sAskSaveYes{"&Save"};
constexpr TResString sAskSaveNo{"Do&n't Save"};
constexpr TResString sAskReload{"%s has changed on disk."};
constexpr TResString sAskReloadHint{"Reload it and lose the changes you made here?"};
constexpr TResString sAskReloadYes{"&Reload"};
constexpr TResString sAskReloadNo{"&Keep Mine"};

constexpr TResString sAllFilesFilter{
    "All workbench files|*.pas;*.kfm;*.qvxproj;*.qvxgroup|Units (*.pas)|*.pas|Forms (*.kfm)|*.kfm|"
    "Projects (*.qvxproj;*.qvxgroup)|*.qvxproj;*.qvxgroup|All files|*"};
constexpr TResString sProjectFilter{"Projects and groups (*.qvxproj;*.qvxgroup)|*.qvxproj;*.qvxgroup"};
constexpr TResString sOneProjectFilter{"Projects (*.qvxproj)|*.qvxproj"};
constexpr TResString sGroupFilter{"Project groups (*.qvxgroup)|*.qvxgroup"};
constexpr TResString sUnitFilter{"Units (*.pas)|*.pas|All files|*"};
constexpr TResString sOpenTitle{"Open"};
constexpr TResString sOpenProjectTitle{"Open Project"};
constexpr TResString sNewProjectTitle{"New Project"};
constexpr TResString sSaveAsTitle{"Save As"};
constexpr TResString sAddToProjectTitle{"Add to Project"};
constexpr TResString sAddProjectTitle{"Add Existing Project"};

constexpr TResString sCommandsTitle{"Commands"};
constexpr TResString sCommandsFilter{"&Search"};
constexpr TResString sCommandsRun{"&Run"};
constexpr TResString sCommandRow{"%s: %s"};

constexpr TResString sOptionsTitle{"Options"};
constexpr TResString sGeneralPage{"General"};
constexpr TResString sFontSizeLabel{"Editor &font size"};
constexpr TResString sPackagesLabel{"&Packages, one path per line (loaded at the next start)"};
constexpr TResString sCannotSaveOptions{"The options cannot be saved: %s"};

constexpr TResString sGalleryTitle{"New Items"};
constexpr TResString sGalleryCategories{"&Categories"};
constexpr TResString sGalleryItems{"&Items"};
constexpr TResString sGalleryEmpty{"There are no items in this category."};
constexpr TResString sWizardUnitName{"Unit"};
constexpr TResString sWizardUnitComment{"A new unit, added to the active project"};
constexpr TResString sWizardProjectName{"Project"};
constexpr TResString sWizardProjectComment{"A new, empty project"};
