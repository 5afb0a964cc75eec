// Macro steps that check.
#include <wx/filename.h>
#include <wx/grid.h>
#include <wx/listctrl.h>
#include <wx/menu.h>

#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "system/System.h"
#include "toolkit/WxText.h"
#include "workbench/macro/MacroControls.h"
#include "workbench/macro/MacroMenus.h"
#include "workbench/macro/MacroPlayer.h"
#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/macro/WindowSteps.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"

namespace kestrel::workbench {

namespace {

/// Visits the lists in frames, hidden ones included, until `visit` returns true; returns whether it did. Message
/// windows are frames with a list.
bool VisitLogs(const std::function<bool(wxListCtrl&)>& visit) {
  const auto visitControl = [&](wxWindow& control) {
    auto* list = dynamic_cast<wxListCtrl*>(&control);
    return list && visit(*list);
  };
  for (wxWindow* window : wxTopLevelWindows)
    if (dynamic_cast<wxFrame*>(window) && VisitControls(*window, visitControl, true)) return true;
  return false;
}

bool IsInMessages(const std::string& text) {
  const wxString wanted = ToWx(text);
  return VisitLogs([&](wxListCtrl& list) { return TextOf(list).Contains(wanted); });
}

/// Runs a command and waits for it; returns its output and the exit status, 0 for success.
std::pair<std::string, int> RunInShell(const std::string& command) {
  const wxString output = wxFileName::CreateTempFileName("macro");
  const std::string line = "(" + command + ") > \"" + output.utf8_string() + "\" 2>&1";
  const int code = std::system(line.c_str());
  std::istringstream lines(ReadWholeFile(output.utf8_string()));
  wxRemoveFile(output);
  std::string printed;
  for (std::string text; std::getline(lines, text);) printed += "    " + text + "\n";
  return {printed, code};
}

/// Empty if the file, and its editor if it is open, have that attribute.
std::string CheckReadOnly(TMainFrame& frame, const std::string& file, bool readOnly) {
  const TOpenModule* module = frame.Workspace().Modules().Find(FullPath(file));
  const TDocument* document = module ? module->FindDocument(FullPath(file)) : nullptr;
  const bool onDisk = (GetFileAttributesOf(file) & faReadOnly) != 0;
  const bool inEditor = document ? document->IsReadOnly() : onDisk;
  if (!FileExists(file)) return Format(sNotOpen, {file});
  if (onDisk == readOnly && inEditor == readOnly) return {};
  return Format(readOnly ? sIsWritable : sIsReadOnly, {file});
}

std::string CheckItem(const wxMenuItem* item, const std::string& path, bool enabled) {
  if (!item) return Format(sNoMenu, {path});
  if (item->IsEnabled() == enabled) return {};
  return Format(enabled ? sControlDisabled : sControlEnabled, {path});
}

std::string CheckMenu(TMainFrame& frame, const std::string& path, bool enabled) {
  return CheckItem(OpenMenuItem(frame, ToWx(path)), path, enabled);
}

std::string CheckFileMenu(TMainFrame& frame, const std::string& file, const std::string& path, bool enabled) {
  wxMenu menu;
  frame.PackageMenus().AppendFileMenus(menu, FullPath(file));
  return CheckItem(FindMenuItem(menu, ToWx(path)), path, enabled);
}

}  // namespace

std::string TMacroPlayer::DoExpect(const TArguments& arguments) {
  std::string problem;
  if (auto* window = ExpectWindow(arguments[0], problem)) expected_ = window;
  return problem;
}

std::string TMacroPlayer::DoExpectNoDialog(const TArguments&) {
  const wxDialog* dialog = TModalStack::Top();
  return dialog ? Format(sDialogOpen, {dialog->GetTitle().utf8_string()}) : std::string();
}

std::string TMacroPlayer::DoExpectMenu(const TArguments&) {
  return TOpenMenus::Any() ? std::string() : sNoOpenMenu.str();
}

std::string TMacroPlayer::DoExpectNoMenu(const TArguments&) {
  return TOpenMenus::Any() ? sMenuOpen.str() : std::string();
}

std::string TMacroPlayer::DoExpectMessage(const TArguments& arguments) {
  return IsInMessages(arguments[0]) ? std::string() : Format(sNoMessage, {arguments[0]});
}

std::string TMacroPlayer::DoExpectColumns(const TArguments&) {
  const auto* grid = FindControl<wxGrid>(Front(), [](const wxGrid&) { return true; });
  if (!grid) return Format(sNoControl, {Front().GetTitle().utf8_string(), sKindColumn, ""});
  int used = 0;
  for (int column = 0; column < grid->GetNumberCols(); ++column) used += grid->GetColSize(column);
  const int width = grid->GetGridWindow()->GetClientSize().GetWidth();
  const int left = std::abs(width - used);
  return left < 3 * grid->GetNumberCols() ? std::string() : Format(sColumnsUnfit, {used + 0LL, width + 0LL});
}

std::string TMacroPlayer::DoPrintMessages(const TArguments&) {
  VisitLogs([](wxListCtrl& list) {
    for (int row = 0; row < list.GetItemCount(); ++row)
      std::printf("    %s\n", list.GetItemText(row).utf8_string().c_str());
    return false;
  });
  return {};
}

std::string TMacroPlayer::DoRun(const TArguments& arguments) {
  const auto [printed, code] = RunInShell(arguments[0]);
  // An exception, so that a command that failed is not retried.
  if (code != 0) throw std::runtime_error(Format(sCommandFailed, {code, printed}));
  std::fputs(printed.c_str(), stdout);
  return {};
}

std::string TMacroPlayer::DoExpectEnabled(const TArguments& arguments) {
  return CheckMenu(frame_, arguments[0], true);
}

std::string TMacroPlayer::DoExpectDisabled(const TArguments& arguments) {
  return CheckMenu(frame_, arguments[0], false);
}

std::string TMacroPlayer::DoExpectHidden(const TArguments& arguments) {
  return OpenMenuItem(frame_, ToWx(arguments[0])) ? Format(sMenuVisible, {arguments[0]}) : std::string();
}

std::string TMacroPlayer::DoExpectFileEnabled(const TArguments& arguments) {
  return CheckFileMenu(frame_, arguments[0], arguments[1], true);
}

std::string TMacroPlayer::DoExpectFileDisabled(const TArguments& arguments) {
  return CheckFileMenu(frame_, arguments[0], arguments[1], false);
}

std::string TMacroPlayer::DoExpectState(const TArguments& arguments) {
  const std::string& hint = frame_.FileStates().StateOf(FullPath(arguments[0])).Hint;
  return hint == arguments[1] ? std::string() : Format(sOtherState, {arguments[0], hint});
}

std::string TMacroPlayer::DoExpectEditor(const TArguments& arguments) {
  TOpenModule* module = frame_.Workspace().Modules().Find(FullPath(arguments[0]));
  const auto* editor =
      module ? dynamic_cast<TTextEditor*>(module->FindDocument(FullPath(arguments[0]))) : nullptr;
  const TEditorPage* page = editor ? frame_.Book().PageOf(*editor) : nullptr;
  if (!page) return Format(sNotOpen, {arguments[0]});
  const bool found = page->ReadText().find(arguments[1]) != std::string::npos;
  return found ? std::string() : Format(sNoEditorText, {arguments[0], arguments[1]});
}

std::string TMacroPlayer::DoExpectFile(const TArguments& arguments) {
  const bool found =
      FileExists(arguments[0]) && ReadWholeFile(arguments[0]).find(arguments[1]) != std::string::npos;
  return found ? std::string() : Format(sNoFileText, {arguments[0], arguments[1]});
}

std::string TMacroPlayer::DoExpectReadOnly(const TArguments& arguments) {
  return CheckReadOnly(frame_, arguments[0], true);
}

std::string TMacroPlayer::DoExpectWritable(const TArguments& arguments) {
  return CheckReadOnly(frame_, arguments[0], false);
}

}  // namespace kestrel::workbench
