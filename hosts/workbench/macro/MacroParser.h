// Macro files: one step per line, a verb and its arguments.
//
//   # a comment
//   open tour/Demo.qvxproj
//   menu "Team|Check Out Files..."
//   type "Comment" "first line\nsecond \"quoted\" line"
//
// An argument with blanks is put in double quotes; \n, \t, \" and \\ work inside them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kestrel::workbench {

enum class TMacroVerb {
  Open,
  Close,
  Activate,
  Edit,
  Save,
  SaveAll,
  WriteFile,
  SetReadOnly,
  Refocus,
  Menu,
  FileMenu,
  Press,
  Tick,
  Untick,
  Select,
  Cell,
  Page,
  Type,
  Choose,
  Key,
  Point,
  Click,
  Expect,
  ExpectNoDialog,
  ExpectMenu,
  ExpectNoMenu,
  ExpectText,
  ExpectNoText,
  ExpectMessage,
  ExpectEnabled,
  ExpectDisabled,
  ExpectHidden,
  ExpectFileEnabled,
  ExpectFileDisabled,
  ExpectTicked,
  ExpectUnticked,
  ExpectState,
  ExpectEditor,
  ExpectFile,
  ExpectReadOnly,
  ExpectWritable,
  ExpectButton,
  ExpectNoButton,
  ExpectColumns,
  PrintMessages,
  Run,
  Screenshot,
  Note,
  Wait,
  Limit,
  Quit
};

/// A verb of a macro file.
struct TMacroVerbRow {
  TMacroVerb Verb;
  std::string_view Name;
  std::size_t Arguments;  ///< exactly that many
  std::string_view Help;  ///< the arguments, and what the step does
};
/// All verbs, in the order of the enumeration.
const std::vector<TMacroVerbRow>& MacroVerbs();

struct TMacroStep {
  TMacroVerb Verb{};
  std::vector<std::string> Arguments;
  int Line = 0;
  std::string Text;  ///< the line as written
};

/// Throws std::runtime_error that names the first invalid line.
std::vector<TMacroStep> ParseMacro(std::string_view text);

}  // namespace kestrel::workbench
