// Queries to the host: user, current project and its units, editors, help file.  User-interface thread only; only
// IsUnitModified throws.
#pragma once

#include <string>
#include <vector>

#include "host/Modules.h"

namespace kestrel::addin {

// Part of the package's interface; no caller here.
/// The logged-on user's name; empty when it is longer than 127 characters.
std::string GetUser();
/// The process's current directory; empty when it is longer than 127 characters.
std::string GetCurrentDir();

/// The active project of the first open project group; without a group the last open project; otherwise null.
IOTAProject* CurrentProject();
/// The current project's file name; empty without one.
std::string GetCurrentProjectFile();

/// Whether the unit's source editor has unsaved changes; false when the file is not open.  Throws std::runtime_error
/// when the module's first editor is no source editor.
bool IsUnitModified(const std::string& fileName);

/// The editor of that file (compared ignoring case) in the file's open module or else in that of `unit`; null when it is
/// not open.
IOTAEditor* FindEditor(const std::string& fileName, const std::string& unit);

/// The file in the front-most editor; empty when there is none or it is not open as a module.
std::string rv_GetCurrentFile();
/// The number of modules of the current project.  Part of the package's interface; no caller here.
int rv_GetUnitCount();
/// Replaces `list` by the current project's module file names in the project's order, without libraries and programs.
/// Leaves it unchanged without a project.
void rv_EnumProjectUnits(std::vector<std::string>* list);

/// The module's first editor whose file has that extension (compared exactly) or, without a match, the last editor; null
/// if that is no form editor.
IOTAFormEditor* GetFormEditor(IOTAModule* module, const std::string& extension);
/// The first form editor of the host's current module.
IOTAFormEditor* GetActiveFormEditor();

/// Full path of an installed help file; empty when the machine's help key is missing.
std::string GetRVHelpFile(const std::string& helpFile);

}  // namespace kestrel::addin
