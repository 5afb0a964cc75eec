// The files of the host's current project and the companions that travel with them.
#pragma once

#include <array>
#include <string>

#include "expert/FileIndex.h"
#include "host/FileTypes.h"
#include "provider/sccapiintf.h"

namespace kestrel::addin {

// The kinds of files, unless the host has kinds of its own.
inline constexpr const char* kSourceExtension = ".pas";
inline constexpr const char* kFormExtension = ".kfm";
inline constexpr const char* kProjectExtension = ".qvxproj";

/// Companions of a source unit and of a project: each entry replaces the file's extension.
inline constexpr std::array SRC_EXTENSIONS{".kdp", ".kfm", ".kcr", ".tlb", ".xfm", "_tlb.pas", ".nfm"};
inline constexpr std::array PRJ_EXTENSIONS{".kpr",  ".cfg", ".kof", ".dsk",     ".res",
                                           ".todo", ".tlb", ".kcr", "_tlb.pas", "_tlb.kcr"};

/// The host's kinds of files, or the add-in's own.
IOTAFileTypes& FileTypes();
bool IsUnit(const std::string& fileName);
/// A project or a package.
bool IsProject(const std::string& fileName);
/// A project, a package or a project group.
bool IsProjectFile(const std::string& fileName);

/// The current project's units, the project file and every companion of each, in this order.  With `onlyExisting`
/// without the files that are not on disk.
TStringList CurrentProjectFiles(bool onlyExisting);
/// Appends to `dest` the companions of `fileName` that `source` contains and that are controlled or, with `checkDisk`,
/// on disk.  `statuses` is parallel to the list that `source` indexes.  A file may then stand in `dest` twice;
/// intentional.
void AppendCompanions(const std::string& fileName, const TFileIndex& source, TStringList& dest,
                      bool checkDisk, const TStatusArray& statuses);

}  // namespace kestrel::addin
