#include "workbench/windows/PascalStyle.h"

#include <wx/stc/stc.h>

namespace kestrel::workbench {

namespace {

constexpr const char* kKeywords =
    "absolute abstract and array as asm assembler automated begin case cdecl class const constructor "
    "contains "
    "deprecated destructor dispinterface div do downto dynamic else end except export exports external far "
    "file "
    "final finalization finally for forward function goto if implementation implements in index inherited "
    "initialization inline interface is label library message mod name near nil not object of operator or "
    "out "
    "overload override package packed pascal platform private procedure program property protected public "
    "published "
    "raise read record register reintroduce repeat requires resourcestring safecall sealed set shl shr "
    "static stdcall "
    "stored strict string then threadvar to try type unit unsafe until uses var virtual while with write xor";

struct TStyleRow {
  int Style;
  const char* Colour;
  bool Bold;
  bool Italic;
};
constexpr TStyleRow kStyles[] = {
    {wxSTC_PAS_DEFAULT, "#1f2328", false, false},       {wxSTC_PAS_IDENTIFIER, "#1f2328", false, false},
    {wxSTC_PAS_COMMENT, "#5a7a4f", false, true},        {wxSTC_PAS_COMMENT2, "#5a7a4f", false, true},
    {wxSTC_PAS_COMMENTLINE, "#5a7a4f", false, true},    {wxSTC_PAS_PREPROCESSOR, "#7a5c00", false, false},
    {wxSTC_PAS_PREPROCESSOR2, "#7a5c00", false, false}, {wxSTC_PAS_NUMBER, "#0a58a6", false, false},
    {wxSTC_PAS_HEXNUMBER, "#0a58a6", false, false},     {wxSTC_PAS_WORD, "#27496d", true, false},
    {wxSTC_PAS_STRING, "#a31515", false, false},        {wxSTC_PAS_STRINGEOL, "#a31515", false, false},
    {wxSTC_PAS_CHARACTER, "#a31515", false, false},     {wxSTC_PAS_OPERATOR, "#1f2328", false, false},
    {wxSTC_PAS_ASM, "#6f42c1", false, false},
};

void ApplyMargins(wxStyledTextCtrl& editor) {
  editor.SetMarginType(0, wxSTC_MARGIN_NUMBER);
  editor.SetMarginWidth(0, editor.TextWidth(wxSTC_STYLE_LINENUMBER, "99999"));
  editor.SetMarginWidth(1, 0);
  editor.SetMarginLeft(editor.FromDIP(6));
}

}  // namespace

void ApplyPascalStyle(wxStyledTextCtrl& editor, int fontSize) {
  editor.StyleSetFont(wxSTC_STYLE_DEFAULT, wxFont(wxFontInfo(fontSize).Family(wxFONTFAMILY_TELETYPE)));
  editor.StyleSetForeground(wxSTC_STYLE_DEFAULT, wxColour("#1f2328"));
  editor.StyleSetBackground(wxSTC_STYLE_DEFAULT, *wxWHITE);
  editor.StyleClearAll();
  editor.StyleSetForeground(wxSTC_STYLE_LINENUMBER, wxColour("#8a97a8"));
  editor.StyleSetBackground(wxSTC_STYLE_LINENUMBER, wxColour("#f4f6f9"));
  editor.SetLexer(wxSTC_LEX_PASCAL);
  editor.SetKeyWords(0, kKeywords);
  for (const auto& row : kStyles) {
    editor.StyleSetForeground(row.Style, wxColour(row.Colour));
    editor.StyleSetBold(row.Style, row.Bold);
    editor.StyleSetItalic(row.Style, row.Italic);
  }
  editor.SetTabWidth(2);
  editor.SetUseTabs(false);
  editor.SetIndent(2);
  editor.SetScrollWidthTracking(true);
  editor.SetCaretLineVisible(true);
  editor.SetCaretLineBackground(wxColour("#f3f7fb"));
  ApplyMargins(editor);
}

}  // namespace kestrel::workbench
