#pragma once

#include "system/Text.h"

namespace kestrel {

inline constexpr TResString sUsage{
    "Usage: scc-register add NAME PATH [--default] [--force] [--search-path] [--isolated]\n"
    "       scc-register remove NAME\n"
    "       scc-register default NAME\n"
    "       scc-register isolate NAME\n"
    "       scc-register direct NAME\n"
    "       scc-register list\n"};
inline constexpr TResString sHelp{
    "Installs, removes and lists the source control providers of this machine.\n"
    "\n"
    "  add      installs the provider library PATH (absolute) under NAME, or changes\n"
    "           the path of one that is installed.  The first provider becomes the\n"
    "           default one.\n"
    "             --default  make it the default one in any case\n"
    "             --force    do not look whether PATH is a provider library\n"
    "             --search-path\n"
    "                        (Windows) search the folders in PATH, too, for the\n"
    "                        libraries that the provider needs; without it only its\n"
    "                        own folder and the system's.  Other programs do not see it\n"
    "             --isolated run it in a process of its own\n"
    "  remove   takes a provider out of the registry; its library stays\n"
    "  default  chooses the provider that projects use unless they name another\n"
    "  isolate  runs a provider in a process of its own: it can neither end the program\n"
    "           that uses it nor keep it waiting for ever\n"
    "  direct   loads a provider into the program that uses it\n"
    "  list     shows the providers; the default one is marked with '*'\n"
    "  --       ends the options, for names that begin with '-'\n"
    "\n"
    "Exit status: 0 done, 1 failed, 2 wrong usage.\n"
    "On Windows changes need a command prompt opened as administrator.  On Linux the\n"
    "current user's registry is changed; to change it for all users, run as an\n"
    "administrator with CORVANE_REGISTRY_DIR=/etc/corvane.\n"};

inline constexpr TResString sMessage{"scc-register: %s\n"};
inline constexpr TResString sUnknownOption{"There is no option %s."};
inline constexpr TResString sUnknownCommand{"There is no command %s."};
inline constexpr TResString sWrongArguments{"Wrong number of arguments for %s."};
inline constexpr TResString sOptionNotForCommand{"%s has no option %s."};

inline constexpr TResString sBadName{
    "\"%s\" cannot be the name of a provider: it must not be empty, contain backslashes or control "
    "characters, or begin or end with a blank."};
inline constexpr TResString sPathNotAbsolute{"%s is not an absolute path."};
inline constexpr TResString sFileNotFound{"%s does not exist."};
inline constexpr TResString sNotLoadable{"%s cannot be loaded: %s"};
inline constexpr TResString sNotAProvider{"%s is not a source control provider: it does not export %s."};
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
inline constexpr TResString sAdded{"Installed \"%s\".\n"};
inline constexpr TResString sRemoved{"Removed \"%s\".\n"};
inline constexpr TResString sIsIsolated{"\"%s\" runs in a process of its own.\n"};
inline constexpr TResString sIsDirect{"\"%s\" is loaded into the program that uses it.\n"};
inline constexpr TResString sIsDefault{"\"%s\" is the default provider.\n"};
inline constexpr TResString sNoDefault{
    "There is no default provider now; choose one with \"scc-register default NAME\".\n"};

}  // namespace kestrel
