// Texts about choosing and opening a project.
#pragma once

#include "system/Text.h"

namespace kestrel::svnscc {

// Notices
inline constexpr TResString sCommitted{"Committed revision %d."};

// Opening a project
inline constexpr TResString sNoProjectNamed{
    "No repository is named, and the folder is no working copy of one."};
inline constexpr TResString sBadProjectPath{"\"%s\" is not a path in a repository."};
inline constexpr TResString sNoLocalFolder{"The local folder \"%s\" is not an absolute path."};
inline constexpr TResString sUnknownProject{"The repository %s has no folder \"%s\"."};
inline constexpr TResString sProjectIsFile{"\"%s\" is a file in the repository %s, not a folder."};
inline constexpr TResString sOtherWorkingCopy{
    "%s is a working copy of %s already: it cannot be bound to %s."};
inline constexpr TResString sCouldNotCreate{"The folder \"%s\" could not be created in the repository: %s"};
inline constexpr TResString sProjectCreated{"Created %s."};
inline constexpr TResString sCreateProjectLog{"Create the project folder."};

// A repository that was not used before
inline constexpr TResString sConsentTitle{"Use This Repository?"};
inline constexpr TResString sConsentNewRepository{
    "%s names a repository that you have not used on this computer before.\n\n"
    "Repository: %s\nFolder: %s\nUser name: %s\n\n"};
inline constexpr TResString sConsentNewFolder{
    "%s names a folder that its repository does not have.\n\n"
    "Repository: %s\nFolder: %s\nUser name: %s\n\n"};
inline constexpr TResString sConsentMayCreate{"The folder is created there if it does not exist. "};
inline constexpr TResString sConsentWillCreate{"The folder will be created there. "};
inline constexpr TResString sConsentNoNote{""};
inline constexpr TResString sConsentQuestion{
    "A repository can run programs on this computer: use it only if you trust whoever made this project.\n\n"
    "Use it?"};
inline constexpr TResString sConsentRefused{
    "You chose not to use the repository %s: nothing was opened. Open the project again to be asked again."};
inline constexpr TResString sNotAskedSilent{
    "The repository %s has not been used on this computer before, and this way of opening asks nothing."};
inline constexpr TResString sNotAskedNoWindow{
    "The repository %s has not been used on this computer before, and this program cannot show the "
    "question."};

// Choosing a project
inline constexpr TResString sNotConnected{"Enter the address of a repository and choose Connect."};
inline constexpr TResString sChooseFolder{"Choose the folder that holds the project."};
inline constexpr TResString sWillUse{"The project will be bound to %s."};
inline constexpr TResString sWillCreate{"The folder %s will be created when the project is opened."};
inline constexpr TResString sRepositoryMade{
    "An empty repository was created. Choose its root, or add a folder."};
inline constexpr TResString sNoUser{"Enter a user name."};
inline constexpr TResString sTooLong{"The address is too long: %d bytes are the most."};
inline constexpr TResString sUserTooLong{"The user name is too long: %d bytes are the most."};
inline constexpr TResString sBadFolderName{"\"%s\" cannot be the name of a folder."};
inline constexpr TResString sFolderExists{"There is a folder \"%s\" already."};
inline constexpr TResString sFolderNotEmpty{
    "The folder \"%s\" is not empty: a repository needs a folder of its own."};

}  // namespace kestrel::svnscc
