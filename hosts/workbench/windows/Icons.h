// The workbench's icons, as SVG.
#pragma once

#include <wx/bmpbndl.h>

#include <string>

#include "host/FileStates.h"

namespace kestrel::workbench {

enum class TIcon { Group, Project, ActiveProject, Unit, Form, Module, Lock, Program, NewUnit, NewProject };

wxBitmapBundle IconBundle(TIcon icon);
const char* IconSvg(TIcon icon);
/// The image of a tree's row: a place for the mark, and the icon.
wxBitmapBundle RowImage(TFileMark mark, TIcon icon);
/// The image of a tab: the mark, and a lock if the file is read-only; empty if it has neither.
wxBitmapBundle TabImage(TFileMark mark, bool readOnly);
inline constexpr int kFileMarks = static_cast<int>(TFileMark::InConflict) + 1;
/// The tool tip of a file: its name, and its state in words.
wxString FileHint(const std::string& fileName, const TFileState& state);
/// An SVG document at `size` device-independent pixels; an empty bundle if it is not one.
wxBitmapBundle SvgBundle(const std::string& svg, int size);

}  // namespace kestrel::workbench
