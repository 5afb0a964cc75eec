// Texts of the wizard that pulls a project.
#pragma once

#include "host/Text.h"

constexpr TResString sPullStep{"Pull project Wizard: Step %d of %d"};
constexpr TResString sPullStatusPage{"Pull project Wizard: Status page"};
constexpr TResString sPullNext{"&Pull"};
constexpr TResString sPullNoProvider{"Unable to pull project, provider not assigned"};
constexpr TResString sPullNoProjectFile{"Corvane project file not found"};
constexpr TResString sPullGetOf{"Get of \"%s\" SUCCEEDED"};
constexpr TResString sPullDone{"Done"};

// What the user is told about the target directory.
constexpr TResString sTargetNone{"Name the directory that the project is to be pulled into."};
constexpr TResString sTargetNotAbsolute{"Give the full path of the directory."};
constexpr TResString sTargetTooLong{"%s is longer than the %d bytes that providers can take."};
constexpr TResString sTargetNotInCodePage{
    "Providers cannot take %s: the system's code page lacks a character of it."};
constexpr TResString sTargetIsFile{"%s is a file, not a directory."};
constexpr TResString sTargetNotMade{"The directory %s could not be created: %s"};
constexpr TResString sTargetWillBeMade{
    "The directory does not exist yet: it is created when the project is pulled."};
constexpr TResString sTargetNotEmpty{
    "The directory is not empty: what is in it mixes with the files of the project."};
constexpr TResString sTargetInProject{
    "It is inside the directory of another project that is under source control: %s"};
constexpr TResString sTargetOfPull{"The project is pulled into %s."};

// What the progress line says.
constexpr TResString sPullOpening{"Opening the project..."};
constexpr TResString sPullListing{"Asking for the project's files..."};
constexpr TResString sPullFetching{"Fetching the project's files..."};
constexpr TResString sPullFetched{"Fetching: %d of %d - %s"};
constexpr TResString sPullChecking{"Checking what was fetched..."};

// Controls.
constexpr TResString sPullSelectTarget{"Select target directory"};
constexpr TResString sPullBrowseTarget{"Choose the target directory"};
constexpr TResString sPullTargetHint{"The directory that the project's files go to"};
constexpr TResString sPullStatus{"Pull project status"};
constexpr TResString sPullOpenProject{"&Open the project in the IDE"};
