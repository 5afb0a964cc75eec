// The macro steps that work or look at windows of any program: of this one, or of the process that a provider runs in.
#pragma once

#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include <optional>
#include <string>

#include "workbench/macro/MacroParser.h"

namespace kestrel::workbench {

/// Whether RunInWindow can do the step.
bool IsWindowStep(TMacroVerb verb);
/// Does the step in `front`, the window that a user works in; empty, or why it could not (yet).  `input` is there for Key.
std::string RunInWindow(const TMacroStep& step, wxTopLevelWindow& front, wxUIActionSimulator* input);
/// The shown window of that title that a user can work in: behind the innermost dialog there is none.  nullptr, and why in
/// `problem`, when there is none.
wxTopLevelWindow* ExpectWindow(const std::string& title, std::string& problem);

}  // namespace kestrel::workbench
