// Style of Pascal source in an editor.
#pragma once

class wxStyledTextCtrl;

namespace kestrel::workbench {

/// Applies font, colours, keywords and margins. `fontSize` is in points; a second call changes the font.
void ApplyPascalStyle(wxStyledTextCtrl& editor, int fontSize);

}  // namespace kestrel::workbench
