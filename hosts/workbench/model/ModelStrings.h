// Texts of the workbench's model: projects, documents, command line.
#pragma once

#include "system/Text.h"

namespace kestrel::workbench {

inline constexpr TResString sUnreadableList{"The text is not in INI form."};
inline constexpr TResString sNotThisKind{"The text has no section [%s]."};
inline constexpr TResString sNewerVersion{"The file was written by a newer version of the workbench."};

inline constexpr TResString sFileNotFound{"%s does not exist."};
inline constexpr TResString sNoOrdinaryFile{"%s is a pipe or a device, not a file that can be edited."};
inline constexpr TResString sLineTooLong{"%s has a line of %d bytes; the editor takes lines of up to %d."};
inline constexpr TResString sCannotSaveReadOnly{"%s is read-only on disk and was not saved."};
inline constexpr TResString sCannotReload{"Cannot reload %s: %s"};
inline constexpr TResString sProjectMissing{"%s lists a project that cannot be opened: %s"};
inline constexpr TResString sReloaded{"%s has changed on disk and was reloaded."};
inline constexpr TResString sGone{"%s no longer exists on disk; its text is kept in the editor."};
inline constexpr TResString sOpenElsewhere{"%s is open in another editor; close that first."};
inline constexpr TResString sNoProject{"There is no open project."};
inline constexpr TResString sNewUnitText{"unit %s;\n\ninterface\n\nimplementation\n\nend.\n"};

inline constexpr TResString sFileHelp{
    "A unit (.pas), a form (.kfm), a project (.qvxproj) or a project group (.qvxgroup)"};
inline constexpr TResString sPackageHelp{"Load this run-time package; may be given several times"};
inline constexpr TResString sPackagesHelp{
    "Without --package, the packages of Tools > Options are loaded; without those, KestrelIDE beside the "
    "program."};

}  // namespace kestrel::workbench
