// How Pascal source looks in an editor.
#pragma once

class wxStyledTextCtrl;

namespace kestrel::workbench {

/// Font, colours, keywords and margins.  `fontSize` in points; calling it again changes the font.
void ApplyPascalStyle(wxStyledTextCtrl& editor, int fontSize);

}  // namespace kestrel::workbench
