#pragma once

#include "system/Text.h"

namespace kestrel {

inline constexpr TResString sDescription{
    "Installs, removes and lists the source control providers of this machine."};
inline constexpr TResString sCommands{"Commands"};
inline constexpr TResString sNameHelp{"The provider's name"};
inline constexpr TResString sPathHelp{"The absolute path of its library"};
inline constexpr TResString sAddHelp{
    "Install the provider library PATH under NAME, or change the path of an\n"
    "installed one. The first provider becomes the default."};
inline constexpr TResString sDefaultHelp{"Make it the default provider"};
inline constexpr TResString sForceHelp{"Do not check that PATH is a provider library"};
inline constexpr TResString sSearchPathHelp{
    "(Windows) Also search the folders in PATH for the libraries\n"
    "that the provider needs, not only its own folder and the\n"
    "system's. Other programs ignore this setting"};
inline constexpr TResString sIsolatedHelp{"Run it in a separate process"};
inline constexpr TResString sIfNoneHelp{"Do nothing if a provider is installed already"};
inline constexpr TResString sRemoveHelp{"Remove a provider from the registry; its library is kept."};
inline constexpr TResString sMakeDefaultHelp{"Choose the provider for projects that do not name one."};
inline constexpr TResString sIsolateHelp{
    "Run a provider in a separate process, so that it can neither crash nor hang the\n"
    "program that uses it."};
inline constexpr TResString sDirectHelp{"Load a provider into the program that uses it."};
inline constexpr TResString sListHelp{"List the providers; the default one is marked with '*'."};
inline constexpr TResString sHelpHelp{"Print this help"};
inline constexpr TResString sFooter{
    "\"--\" ends the options, for names that begin with '-'.\n"
    "Exit status: 0 success, 1 failure, 2 wrong usage.\n"
    "On Windows, changes need a command prompt opened as administrator. On Linux they\n"
    "affect the current user; to change the providers of all users, run as root with\n"
    "CORVANE_REGISTRY_DIR=/etc/corvane."};
inline constexpr TResString sCommand{"A command"};

inline constexpr TResString sMessage{"scc-register: %s\n"};
inline constexpr TResString sSeeHelp{"Run \"scc-register --help\" for more information.\n"};

inline constexpr TResString sBadName{
    "\"%s\" cannot be the name of a provider: it must not be empty, contain backslashes or control "
    "characters, or begin or end with a blank."};
inline constexpr TResString sPathNotAbsolute{"%s is not an absolute path."};
inline constexpr TResString sFileNotFound{"%s does not exist."};
inline constexpr TResString sNotLoadable{"%s cannot be loaded: %s"};
inline constexpr TResString sNotAProvider{"%s is not a source control provider: it does not export %s."};
inline constexpr TResString sOnlyIsolated{
    "%s is a %d-bit library. It can only run in a separate process, with --isolated."};
inline constexpr TResString sNotInstalled{"No provider is installed under the name \"%s\"."};
inline constexpr TResString sNoKey{
    "The entry of \"%s\" names no key of the registry; install the provider again."};
inline constexpr TResString sInstalledForAll{
    "\"%s\" is installed for all users of this machine; only an administrator can remove it."};

inline constexpr TResString sNoProviders{"No source control providers are installed.\n"};
inline constexpr TResString sProviderLine{"%s %s  %s"};
inline constexpr TResString sNoSuchFile{" (not found)"};
inline constexpr TResString sInPath{" (searches PATH)"};
inline constexpr TResString sInOwnProcess{" (isolated)"};
inline constexpr TResString sForOtherBits{" (for %d-bit programs; \"isolate\" makes it usable here)"};
inline constexpr TResString sAdded{"Installed \"%s\".\n"};
inline constexpr TResString sRemoved{"Removed \"%s\".\n"};
inline constexpr TResString sIsIsolated{"\"%s\" runs in a process of its own.\n"};
inline constexpr TResString sIsDirect{"\"%s\" is loaded into the program that uses it.\n"};
inline constexpr TResString sIsDefault{"\"%s\" is the default provider.\n"};
inline constexpr TResString sNoDefault{
    "There is no default provider now; choose one with \"scc-register default NAME\".\n"};

}  // namespace kestrel
