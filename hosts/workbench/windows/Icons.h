// The workbench's icons, as SVG.
#pragma once

#include <wx/bmpbndl.h>

#include <string>

namespace kestrel::workbench {

enum class TIcon { Group, Project, ActiveProject, Unit, Form, Module, Lock, Program, NewUnit, NewProject };

wxBitmapBundle IconBundle(TIcon icon);
const char* IconSvg(TIcon icon);
/// An SVG document at `size` device-independent pixels; an empty bundle if it is not one.
wxBitmapBundle SvgBundle(const std::string& svg, int size);

}  // namespace kestrel::workbench
