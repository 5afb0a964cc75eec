#include "workbench/macro/MacroParser.h"

#include <algorithm>
#include <stdexcept>

#include "system/Text.h"
#include "workbench/macro/MacroStrings.h"

namespace kestrel::workbench {

const std::vector<TMacroVerbRow>& MacroVerbs() {
  using enum TMacroVerb;
  static const std::vector<TMacroVerbRow> rows{
      {Open, "open", 1, "PATH: opens a unit, form, project or project group"},
      {Close, "close", 1, "PATH: closes it"},
      {Activate, "activate", 1, "PATH: makes this project of the group the active one"},
      {Edit, "edit", 2, "PATH TEXT: types TEXT at the end of its editor"},
      {Save, "save", 0, "saves the file of the editor in front"},
      {SaveAll, "save-all", 0, "saves everything modified"},
      {WriteFile, "write-file", 2, "PATH TEXT: writes the file as another program would"},
      {SetReadOnly, "set-read-only", 2, "PATH yes|no: changes the attribute as another program would"},
      {Refocus, "refocus", 0, "acts as if the user came back from another program: checks for changed files"},
      {Menu, "menu", 1, "\"Menu|Item\": opens the menu and clicks the item when it is enabled"},
      {FileMenu, "file-menu", 2,
       "PATH \"Menu|Item\": opens the context menu of a file and clicks a package's item"},
      {Press, "press", 1, "LABEL: clicks a button"},
      {Tick, "tick", 1, "TEXT: ticks a check box, or the row of a list with boxes that has TEXT in a column"},
      {Untick, "untick", 1, "TEXT: unticks it"},
      {Select, "select", 1, "TEXT: selects a row of a list, tree or grid"},
      {Cell, "cell", 3, "ROW COLUMN TEXT: edits a grid's cell"},
      {Page, "page", 1, "CAPTION: turns to a page"},
      {Type, "type", 2, "LABEL TEXT: replaces the text of the box labelled LABEL"},
      {Choose, "choose", 2, "LABEL ITEM: picks an entry of the list labelled LABEL"},
      {Key, "key", 1, "NAME: presses a key: Escape, Return, Delete, F1, Ctrl+A, ..."},
      {Point, "point", 2, "KIND NAME: moves the mouse pointer to a menu, row, list, editor or button (KIND)"},
      {Click, "click", 1, "BUTTON: clicks left, middle or right there, or turns the wheel up or down"},
      {Expect, "expect", 1, "TITLE: waits for a window; the next steps are executed in it"},
      {ExpectNoDialog, "expect-no-dialog", 0, "waits until no dialog is open"},
      {ExpectMenu, "expect-menu", 0, "waits until a menu is open on the screen"},
      {ExpectNoMenu, "expect-no-menu", 0, "waits until no menu is open"},
      {ExpectText, "expect-text", 1, "TEXT: waits until a visible control shows it"},
      {ExpectNoText, "expect-no-text", 1, "TEXT: waits until no visible control shows it"},
      {ExpectMessage, "expect-message", 1, "TEXT: waits for a line of the message pane or message window"},
      {ExpectEnabled, "expect-enabled", 1, "\"Menu|Item\": opens the menu; the item must be enabled"},
      {ExpectDisabled, "expect-disabled", 1, "\"Menu|Item\": the item must be disabled"},
      {ExpectHidden, "expect-hidden", 1, "\"Menu|Item\": the item must not be in the menu"},
      {ExpectFileEnabled, "expect-file-enabled", 2,
       "PATH \"Menu|Item\": see file-menu; the item must be enabled"},
      {ExpectFileDisabled, "expect-file-disabled", 2, "PATH \"Menu|Item\": the item must be disabled"},
      {ExpectTicked, "expect-ticked", 1, "TEXT: see tick"},
      {ExpectUnticked, "expect-unticked", 1, "TEXT: see tick"},
      {ExpectState, "expect-state", 2,
       "PATH TEXT: the mark of the file has that hint; empty: it has no mark"},
      {ExpectEditor, "expect-editor", 2, "PATH TEXT: its editor contains TEXT"},
      {ExpectFile, "expect-file", 2, "PATH TEXT: the file on disk contains TEXT"},
      {ExpectReadOnly, "expect-read-only", 1, "PATH: the file, and its editor when open, are read-only"},
      {ExpectWritable, "expect-writable", 1, "PATH: the file, and its editor when open, are writable"},
      {ExpectButton, "expect-button", 1, "LABEL: waits for an enabled button"},
      {ExpectNoButton, "expect-no-button", 1, "LABEL: waits until it is disabled or gone"},
      {ExpectColumns, "expect-columns", 0, "waits until the columns of the window's grid fill its width"},
      {PrintMessages, "print-messages", 0, "prints the lines of packages' message windows"},
      {Run, "run", 1, "COMMAND: runs it in the shell and prints its output; it must succeed"},
      {Screenshot, "screenshot", 1, "FILE: saves a screenshot of the whole screen"},
      {Note, "note", 1, "TEXT: prints it"},
      {Wait, "wait", 1, "MILLISECONDS: does nothing"},
      {Limit, "limit", 1, "MILLISECONDS: time limit of each following step"},
      {Quit, "quit", 0, "ends the program; unsaved changes are discarded"},
  };
  return rows;
}

namespace {

char Unescaped(char c) { return c == 'n' ? '\n' : c == 't' ? '\t' : c; }

/// Removes one word, quoted or not, from the front of `rest` and returns it.
std::string ReadWord(std::string_view& rest) {
  std::string word;
  if (!rest.starts_with('"')) {
    const std::size_t end = std::min(rest.find_first_of(" \t"), rest.size());
    word = rest.substr(0, end);
    rest.remove_prefix(end);
    return word;
  }
  for (std::size_t i = 1; i < rest.size(); ++i) {
    if (rest[i] == '"') {
      rest.remove_prefix(i + 1);
      return word;
    }
    word += rest[i] == '\\' && i + 1 < rest.size() ? Unescaped(rest[++i]) : rest[i];
  }
  throw std::runtime_error(sMacroOpenQuote);
}

std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t\r"), line.size()));
    if (line.empty() || line.starts_with('#')) return words;
    words.push_back(ReadWord(line));
  }
}

TMacroStep MakeStep(std::vector<std::string> words) {
  const auto& verbs = MacroVerbs();
  const auto row = std::ranges::find(verbs, words.front(), &TMacroVerbRow::Name);
  if (row == verbs.end()) throw std::runtime_error(Format(sMacroUnknownVerb, {words.front()}));
  words.erase(words.begin());
  if (words.size() != row->Arguments)
    throw std::runtime_error(
        Format(sMacroArguments, {std::string(row->Name), static_cast<long long>(row->Arguments),
                                 static_cast<long long>(words.size())}));
  const bool number = row->Verb == TMacroVerb::Wait || row->Verb == TMacroVerb::Limit;
  if (number && (words[0].empty() || words[0].size() > 6 ||
                 words[0].find_first_not_of("0123456789") != std::string::npos))
    throw std::runtime_error(Format(sMacroNumber, {words[0]}));
  if (row->Verb == TMacroVerb::SetReadOnly && words[1] != "yes" && words[1] != "no")
    throw std::runtime_error(Format(sMacroYesNo, {words[1]}));
  return {row->Verb, std::move(words), 0, {}};
}

}  // namespace

std::vector<TMacroStep> ParseMacro(std::string_view text) {
  std::vector<TMacroStep> steps;
  int number = 0;
  while (!text.empty()) {
    ++number;
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    try {
      auto words = Words(line);
      if (words.empty()) continue;
      steps.push_back(MakeStep(std::move(words)));
    } catch (const std::exception& e) {
      throw std::runtime_error(Format(sMacroLine, {static_cast<long long>(number), e.what()}));
    }
    steps.back().Line = number;
    steps.back().Text = Trim(line);
  }
  return steps;
}

}  // namespace kestrel::workbench
