// Texts of the workbench's model: projects, documents, packages, command line.
#pragma once

#include "host/Text.h"

constexpr TResString sUnreadableList{"The text is not in INI form."};
constexpr TResString sNotThisKind{"The text has no section [%s]."};
constexpr TResString sNewerVersion{"The file was written by a newer version of the workbench."};

constexpr TResString sFileNotFound{"%s does not exist."};
constexpr TResString sNoOrdinaryFile{"%s is a pipe or a device, not a file that can be edited."};
constexpr TResString sLineTooLong{"%s has a line of %d bytes; the editor takes lines of up to %d."};
constexpr TResString sCannotSaveReadOnly{"%s is read-only on disk and was not saved."};
constexpr TResString sCannotReload{"Cannot reload %s: %s"};
constexpr TResString sProjectMissing{"%s lists a project that cannot be opened: %s"};
constexpr TResString sReloaded{"%s has changed on disk and was reloaded."};
constexpr TResString sGone{"%s no longer exists on disk; its text is kept in the editor."};
constexpr TResString sPackageFailure{"%s: %s"};
constexpr TResString sUnknownFailure{"unknown error"};
constexpr TResString sOpenElsewhere{"%s is open in another editor; close that first."};
constexpr TResString sNoProject{"There is no open project."};
constexpr TResString sNewUnitText{"unit %s;\n\ninterface\n\nimplementation\n\nend.\n"};

constexpr TResString sCategoryNew{"New Files"};
constexpr TResString sCategoryOther{"Other Files"};

constexpr TResString sPackageNotFound{"Package %s does not exist."};
constexpr TResString sPackageNotLoaded{"Package %s could not be loaded: %s"};
constexpr TResString sPackageNoEntry{"Package %s has no entry point \"%s\" and was not loaded."};
constexpr TResString sPackageLeftovers{"Package left %d registrations behind when it was unloaded."};

constexpr TResString sUnknownOption{"unknown option %s"};
constexpr TResString sOptionNeedsValue{"option %s needs a value"};
constexpr TResString sOptionTakesNoValue{"option %s takes no value"};
constexpr TResString sTooManyFiles{"only one file can be opened: %s"};
constexpr TResString sUsage{
    "Usage: workbench [options] [FILE]\n"
    "\n"
    "FILE is a unit (.pas), a form (.kfm), a project (.qvxproj) or a project group (.qvxgroup).\n"
    "\n"
    "  --package PATH      load this run-time package (may be given several times)\n"
    "  --play FILE         play a macro file and exit: 0 when every step worked, 1 when one failed\n"
    "  --screenshots DIR   where a macro's screenshots go (default: the current directory)\n"
    "  --macro-help        list the steps of a macro\n"
    "  --help              show this text\n"
    "  --version           show the version\n"
    "\n"
    "Without --package, the packages of Tools > Options are loaded; without those, KestrelIDE beside the "
    "program.\n"};
