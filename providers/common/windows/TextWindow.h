// A window with the text of one version of a file.
#pragma once

#include "common/text/Contents.h"
#include "common/windows/WindowTools.h"

namespace kestrel {

void ShowTextWindow(wxWindow* parent, const std::string& title, const Contents& contents);

}  // namespace kestrel
