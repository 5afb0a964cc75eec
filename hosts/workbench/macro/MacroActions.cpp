// Macro steps that act.
#include <wx/menu.h>

#include <stdexcept>

#include "system/System.h"
#include "toolkit/WxText.h"
#include "workbench/macro/MacroControls.h"
#include "workbench/macro/MacroMenus.h"
#include "workbench/macro/MacroMouse.h"
#include "workbench/macro/MacroPlayer.h"
#include "workbench/macro/MacroStrings.h"
#include "workbench/macro/WindowFinder.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/OpenMenus.h"

namespace kestrel::workbench {

namespace {

void Require(bool done, const TResString& text, const std::string& what = {}) {
  if (!done) throw std::runtime_error(Format(text, {what}));
}

TOpenModule& OpenModule(TMainFrame& frame, const std::string& file) {
  TOpenModule* module = frame.Workspace().Modules().Find(FullPath(file));
  Require(module != nullptr, sNotOpen, file);
  return *module;
}

}  // namespace

std::string TMacroPlayer::DoOpen(const TArguments& arguments) {
  Require(frame_.Workspace().Open(arguments[0]), sNotOpened, arguments[0]);
  return {};
}

std::string TMacroPlayer::DoClose(const TArguments& arguments) {
  Require(frame_.Workspace().Close(OpenModule(frame_, arguments[0])), sNotDone);
  return {};
}

std::string TMacroPlayer::DoActivate(const TArguments& arguments) {
  auto* project = dynamic_cast<TProject*>(&OpenModule(frame_, arguments[0]));
  Require(project != nullptr, sNotOpen, arguments[0]);
  frame_.Workspace().SetActiveProject(*project);
  return {};
}

std::string TMacroPlayer::DoEdit(const TArguments& arguments) {
  Require(frame_.Workspace().Open(arguments[0]), sNotOpened, arguments[0]);
  TEditorPage* page = frame_.Book().FrontPage();
  Require(page && page->TypeAtEnd(arguments[1]), sIsReadOnly, arguments[0]);
  return {};
}

std::string TMacroPlayer::DoSave(const TArguments&) {
  TTextEditor* editor = frame_.Workspace().ActiveEditor();
  Require(editor != nullptr, sNotDone);
  frame_.Workspace().Save(*editor);
  return {};
}

std::string TMacroPlayer::DoSaveAll(const TArguments&) {
  Require(frame_.Workspace().SaveAll(), sNotDone);
  return {};
}

std::string TMacroPlayer::DoWriteFile(const TArguments& arguments) {
  WriteFileAtomically(arguments[0], arguments[1]);
  return {};
}

std::string TMacroPlayer::DoSetReadOnly(const TArguments& arguments) {
  Require(SetFileAttributesOf(arguments[0], arguments[1] == "yes" ? faReadOnly : faArchive), sNotDone);
  return {};
}

std::string TMacroPlayer::DoRefocus(const TArguments&) {
  frame_.CheckFilesOnDisk();
  return {};
}

std::string TMacroPlayer::DoMenu(const TArguments& arguments) {
  if (const wxDialog* dialog = TModalStack::Top())
    return Format(sDialogOpen, {dialog->GetTitle().utf8_string()});
  const wxMenuItem* item = OpenMenuItem(frame_, ToWx(arguments[0]));
  if (!item) return Format(sNoMenu, {arguments[0]});
  if (!item->IsEnabled()) return Format(sControlDisabled, {arguments[0]});
  ClickMenuItem(*item);
  return {};
}

std::string TMacroPlayer::DoFileMenu(const TArguments& arguments) {
  if (const wxDialog* dialog = TModalStack::Top())
    return Format(sDialogOpen, {dialog->GetTitle().utf8_string()});
  wxMenu menu;
  frame_.PackageMenus().AppendFileMenus(menu, FullPath(arguments[0]));
  const wxMenuItem* item = FindMenuItem(menu, ToWx(arguments[1]));
  if (!item) return Format(sNoMenu, {arguments[1]});
  if (!item->IsEnabled()) return Format(sControlDisabled, {arguments[1]});
  item->GetMenu()->SendEvent(item->GetId());
  return {};
}

std::string TMacroPlayer::DoPoint(const TArguments& arguments) {
  return PointAt(*input_, frame_, Front(), arguments[0], arguments[1]);
}
std::string TMacroPlayer::DoClick(const TArguments& arguments) { return ClickMouse(*input_, arguments[0]); }

}  // namespace kestrel::workbench
