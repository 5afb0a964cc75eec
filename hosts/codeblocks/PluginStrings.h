// Texts of the plug-in.
#pragma once

#include "system/Text.h"

namespace kestrel::codeblocks {

inline constexpr TResString sPluginTitle{"KestrelIDE"};
inline constexpr TResString sOptionsPanel{"Source control"};
inline constexpr TResString sOptionsNotSaved{"The options cannot be saved: %s"};
inline constexpr TResString sNotReloaded{
    "%s has changed on disk, but its editor has unsaved changes and was not reloaded."};
inline constexpr TResString sNoProvider{
    "No source control provider is registered, and the one for Subversion could not be.\n"
    "%s explains how to register a provider. The log has the reason."};

}  // namespace kestrel::codeblocks
