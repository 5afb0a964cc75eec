// The workbench's pictures, drawn as SVG so that they stay sharp at every scale.
#pragma once

#include <wx/bmpbndl.h>

#include <string>

namespace kestrel::workbench {

enum class TIcon { Group, Project, ActiveProject, Unit, Form, Module, Lock, Program, NewUnit, NewProject };

wxBitmapBundle IconBundle(TIcon icon);
const char* IconSvg(TIcon icon);
/// An SVG document of a package, shown at `size` device-independent pixels; an empty bundle when it is not one.
wxBitmapBundle SvgBundle(const std::string& svg, int size);

}  // namespace kestrel::workbench
