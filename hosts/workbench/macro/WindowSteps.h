// Macro steps that operate or inspect windows of any program: the workbench or the process of a provider.
#pragma once

#include <wx/toplevel.h>
#include <wx/uiaction.h>

#include <optional>
#include <string>

#include "workbench/macro/MacroParser.h"

namespace kestrel::workbench {

/// Whether RunInWindow handles the step.
bool IsWindowStep(TMacroVerb verb);
/// Executes the step in `front`, the window that the user works in. Returns an empty string, or why it is not possible
/// (yet). `input` is used by Key only.
std::string RunInWindow(const TMacroStep& step, wxTopLevelWindow& front, wxUIActionSimulator* input);
/// The shown window of that title that a user can work in, which excludes those behind a modal dialog. Null, and the
/// reason in `problem`, if there is none.
wxTopLevelWindow* ExpectWindow(const std::string& title, std::string& problem);

}  // namespace kestrel::workbench
