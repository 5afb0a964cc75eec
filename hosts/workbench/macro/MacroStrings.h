// Texts of the macro player.
#pragma once

#include "system/Text.h"

namespace kestrel::workbench {

inline constexpr TResString sPlayHelp{
    "Play a macro file, then exit: with 0 if every step succeeded, 1 if one failed"};
inline constexpr TResString sScreenshotsHelp{
    "Where a macro's screenshots are written to (default: the current folder)"};
inline constexpr TResString sMacroHelpHelp{"List the steps of a macro"};

inline constexpr TResString sMacroLine{"line %d: %s"};
inline constexpr TResString sMacroUnknownVerb{"there is no verb \"%s\""};
inline constexpr TResString sMacroArguments{"\"%s\" takes %d arguments, not %d"};
inline constexpr TResString sMacroOpenQuote{"the closing quote is missing"};
inline constexpr TResString sMacroNumber{"\"%s\" is not a number of milliseconds"};

inline constexpr TResString sMacroYesNo{"\"%s\" is neither yes nor no"};

inline constexpr TResString sStepFailed{"FAILED line %d: %s: %s"};
inline constexpr TResString sStepDone{"line %d: %s"};
inline constexpr TResString sMacroPassed{"macro passed: %d steps"};
inline constexpr TResString sOpenWindows{"Open windows:"};

inline constexpr TResString sNoWindow{"no window titled \"%s\" is open"};
inline constexpr TResString sDialogOpen{"the dialog \"%s\" is open"};
inline constexpr TResString sNoControl{"\"%s\" has no %s \"%s\""};
inline constexpr TResString sControlDisabled{"\"%s\" is disabled"};
inline constexpr TResString sControlEnabled{"\"%s\" is enabled"};
inline constexpr TResString sNoItem{"\"%s\" has no entry \"%s\""};
inline constexpr TResString sNoMenu{"there is no menu item \"%s\""};
inline constexpr TResString sMenuVisible{"\"%s\" is in the menu"};
inline constexpr TResString sNoKey{"there is no key \"%s\""};
inline constexpr TResString sNoPlace{"no %s \"%s\" is on the screen"};
inline constexpr TResString sNoMouseButton{"the mouse has no \"%s\""};
inline constexpr TResString sNoOpenMenu{"no menu is open"};
inline constexpr TResString sMenuOpen{"a menu is open"};
inline constexpr TResString sNotActive{"the keyboard is not in \"%s\""};
inline constexpr TResString sColumnsUnfit{"the columns are %d of %d pixels wide"};
inline constexpr TResString sNoText{"no window shows \"%s\""};
inline constexpr TResString sHasText{"a window shows \"%s\""};
inline constexpr TResString sCommandFailed{"it failed (%d)\n%s"};
inline constexpr TResString sNoMessage{"no message contains \"%s\""};
inline constexpr TResString sNotOpen{"%s is not open"};
inline constexpr TResString sOtherState{"%s is marked \"%s\""};
inline constexpr TResString sNoEditorText{"the editor of %s does not contain \"%s\""};
inline constexpr TResString sNoFileText{"the file %s does not contain \"%s\""};
inline constexpr TResString sIsReadOnly{"%s is read-only"};
inline constexpr TResString sIsWritable{"%s is writable"};
inline constexpr TResString sIsTicked{"\"%s\" is ticked"};
inline constexpr TResString sIsNotTicked{"\"%s\" is not ticked"};
inline constexpr TResString sHasButton{"there is a button \"%s\""};
inline constexpr TResString sNotOpened{"%s was not opened"};
inline constexpr TResString sNotDone{"the program did not do it; see its messages"};
inline constexpr TResString sNoScreenshot{"cannot write %s"};

inline constexpr TResString sKindButton{"button"};
inline constexpr TResString sKindBox{"check box or row"};
inline constexpr TResString sKindText{"text box"};
inline constexpr TResString sKindList{"list"};
inline constexpr TResString sKindRow{"row"};
inline constexpr TResString sKindPage{"page"};
inline constexpr TResString sKindColumn{"column"};

}  // namespace kestrel::workbench
