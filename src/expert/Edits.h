// Saves the editors' unsaved changes before provider calls, and reloads the files that such calls changed on disk.
#pragma once

#include <string>
#include <vector>

namespace kestrel::addin {

/// Saves the file if its editor, form editors included, has unsaved changes.  Every caller that hands a file to the
/// provider does this first: the provider would take the old text, and the reload afterwards would drop the new one.
///
/// Throws EAbort when the host could not save the file: it must then neither be handed to the provider nor reloaded.
/// Throws what IsUnitModified throws.
void SaveEdits(const std::string& fileName);
/// Saves every modified module of the host.  Throws EAbort when that fails.
void SaveAllModules();

/// Closes everything and opens the project group again or, when it is not on disk, the project.
void ReloadProject(const std::string& projectFile);
/// Reloads the file if the host has it open.  The current project file reloads the project; other projects are ignored.
void ReloadFile(const std::string& fileName);
/// The same for several files.  If the current project file is among them, only the project is reloaded.
void ReloadFiles(const std::vector<std::string>& files);

}  // namespace kestrel::addin
