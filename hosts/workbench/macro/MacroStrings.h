// Texts of the macro player.
#pragma once

#include "host/Text.h"

constexpr TResString sMacroLine{"line %d: %s"};
constexpr TResString sMacroUnknownVerb{"there is no verb \"%s\""};
constexpr TResString sMacroArguments{"\"%s\" takes %d arguments, not %d"};
constexpr TResString sMacroOpenQuote{"the closing quote is missing"};
constexpr TResString sMacroNumber{"\"%s\" is not a number of milliseconds"};

constexpr TResString sMacroYesNo{"\"%s\" is neither yes nor no"};

constexpr TResString sStepFailed{"FAILED line %d: %s: %s"};
constexpr TResString sStepDone{"line %d: %s"};
constexpr TResString sMacroPassed{"macro passed: %d steps"};
constexpr TResString sOpenWindows{"Open windows:"};

constexpr TResString sNoWindow{"no window titled \"%s\" is open"};
constexpr TResString sDialogOpen{"the dialog \"%s\" is open"};
constexpr TResString sNoControl{"\"%s\" has no %s \"%s\""};
constexpr TResString sControlDisabled{"\"%s\" is disabled"};
constexpr TResString sControlEnabled{"\"%s\" is enabled"};
constexpr TResString sNoItem{"\"%s\" has no entry \"%s\""};
constexpr TResString sNoMenu{"there is no menu item \"%s\""};
constexpr TResString sMenuVisible{"\"%s\" is in the menu"};
constexpr TResString sNoKey{"there is no key \"%s\""};
constexpr TResString sNoPlace{"no %s \"%s\" is on the screen"};
constexpr TResString sNoMouseButton{"the mouse has no \"%s\""};
constexpr TResString sNoOpenMenu{"no menu is open"};
constexpr TResString sMenuOpen{"a menu is open"};
constexpr TResString sNotActive{"the keyboard is not in \"%s\""};
constexpr TResString sColumnsUnfit{"the columns are %d of %d pixels wide"};
constexpr TResString sNoText{"no window shows \"%s\""};
constexpr TResString sHasText{"a window shows \"%s\""};
constexpr TResString sCommandFailed{"it failed (%d)\n%s"};
constexpr TResString sNoMessage{"no message contains \"%s\""};
constexpr TResString sNotOpen{"%s is not open"};
constexpr TResString sNoEditorText{"the editor of %s does not contain \"%s\""};
constexpr TResString sNoFileText{"the file %s does not contain \"%s\""};
constexpr TResString sIsReadOnly{"%s is read-only"};
constexpr TResString sIsWritable{"%s is writable"};
constexpr TResString sIsTicked{"\"%s\" is ticked"};
constexpr TResString sIsNotTicked{"\"%s\" is not ticked"};
constexpr TResString sHasButton{"there is a button \"%s\""};
constexpr TResString sNotOpened{"%s was not opened"};
constexpr TResString sNotDone{"the program did not do it; see its messages"};
constexpr TResString sNoScreenshot{"cannot write %s"};

constexpr TResString sKindButton{"button"};
constexpr TResString sKindBox{"check box or row"};
constexpr TResString sKindText{"text box"};
constexpr TResString sKindList{"list"};
constexpr TResString sKindRow{"row"};
constexpr TResString sKindPage{"page"};
constexpr TResString sKindColumn{"column"};
