// Texts of the wizard that pulls a project.
#pragma once

#include "system/Text.h"

namespace kestrel::addin {

inline constexpr TResString sPullStep{"Pull project Wizard: Step %d of %d"};
inline constexpr TResString sPullStatusPage{"Pull project Wizard: Status page"};
inline constexpr TResString sPullNext{"&Pull"};
inline constexpr TResString sPullNoProvider{"Unable to pull project, provider not assigned"};
inline constexpr TResString sPullNoProjectFile{"Corvane project file not found"};
inline constexpr TResString sPullGetOf{"Get of \"%s\" SUCCEEDED"};
inline constexpr TResString sPullDone{"Done"};

// Problems of the target directory, and remarks about it.
inline constexpr TResString sTargetNone{"Name the directory that the project is to be pulled into."};
inline constexpr TResString sTargetNotAbsolute{"Give the full path of the directory."};
inline constexpr TResString sTargetTooLong{"%s is longer than the %d bytes that providers can take."};
inline constexpr TResString sTargetNotInCodePage{
    "Providers cannot take %s: the system's code page lacks a character of it."};
inline constexpr TResString sTargetIsFile{"%s is a file, not a directory."};
inline constexpr TResString sTargetNotMade{"The directory %s could not be created: %s"};
inline constexpr TResString sTargetWillBeMade{
    "The directory does not exist yet: it is created when the project is pulled."};
inline constexpr TResString sTargetNotEmpty{
    "The directory is not empty: what is in it mixes with the files of the project."};
inline constexpr TResString sTargetInProject{
    "It is inside the directory of another project that is under source control: %s"};
inline constexpr TResString sTargetOfPull{"The project is pulled into %s."};

// The progress line.
inline constexpr TResString sPullOpening{"Opening the project..."};
inline constexpr TResString sPullListing{"Asking for the project's files..."};
inline constexpr TResString sPullFetching{"Fetching the project's files..."};
inline constexpr TResString sPullFetched{"Fetching: %d of %d - %s"};
inline constexpr TResString sPullChecking{"Checking what was fetched..."};

// Controls.
inline constexpr TResString sPullSelectTarget{"Select target directory"};
inline constexpr TResString sPullBrowseTarget{"Choose the target directory"};
inline constexpr TResString sPullTargetHint{"The directory that the project's files go to"};
inline constexpr TResString sPullStatus{"Pull project status"};
inline constexpr TResString sPullOpenProject{"&Open the project in the IDE"};

}  // namespace kestrel::addin
