// The commands of the main menu: a table of captions, functions and conditions, and the functions.
#include <wx/aboutdlg.h>
#include <wx/filedlg.h>
#include <wx/menu.h>
#include <wx/msgdlg.h>
#include <wx/numdlg.h>

#include <algorithm>

#include "hosts/common/PackageLoader.h"
#include "hosts/common/WindowMenu.h"
#include "system/Paths.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/CommandsDialog.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/FindDialog.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/GalleryDialog.h"
#include "workbench/windows/Icons.h"
#include "workbench/windows/MainFrame.h"
#include "workbench/windows/OptionsDialog.h"
#include "workbench/windows/OwnWizard.h"
#include "workbench/windows/ProjectTree.h"
#include "workbench/windows/Version.h"

namespace kestrel::workbench {

namespace {

enum TCommandId {
  cmSeparator = wxID_SEPARATOR,
  cmFirst = wxID_HIGHEST + 1,
  cmNewUnit = cmFirst,
  cmNewProject,
  cmNewOther,
  cmOpen,
  cmOpenProject,
  cmReload,
  cmSave,
  cmSaveAs,
  cmSaveAll,
  cmClose,
  cmCloseAll,
  cmExit,
  cmUndo,
  cmRedo,
  cmCut,
  cmCopy,
  cmPaste,
  cmSelectAll,
  cmFind,
  cmFindNext,
  cmReplace,
  cmGoToLine,
  cmToggleTree,
  cmToggleMessages,
  cmToggleForm,
  cmNextEditor,
  cmAddToProject,
  cmRemoveFromProject,
  cmAddProject,
  cmSetActive,
  cmCloseProject,
  cmSaveGroupAs,
  cmCommands,
  cmOptions,
  cmContents,
  cmAbout,
  cmLast = cmAbout,
  cmRecentFirst,
  cmRecentLast = cmRecentFirst + static_cast<int>(kMaxRecent) - 1,
  cmNewMenu,
  cmRecentMenu  // submenus
};

}  // namespace

struct TMainFrame::TCommand {
  int Id;
  const TResString& Caption;
  void (TMainFrame::*Run)();
  bool (TMainFrame::*Enabled)() const = nullptr;  // null: always
};

struct TMainFrame::TCommandMenu {
  const TResString& Caption;
  std::vector<int> Commands;
};

const TMainFrame::TCommand* TMainFrame::FindCommand(int id) {
  using F = TMainFrame;
  static const TCommand commands[] = {
      // in the order of TCommandId
      {cmNewUnit, sNewUnit, &F::NewUnit},
      {cmNewProject, sNewProject, &F::NewProject},
      {cmNewOther, sNewOther, &F::NewOther},
      {cmOpen, sOpen, &F::OpenFiles},
      {cmOpenProject, sOpenProject, &F::OpenProject},
      {cmReload, sReload, &F::ReloadCurrent, &F::HasEditor},
      {cmSave, sSave, &F::SaveCurrent, &F::HasEditor},
      {cmSaveAs, sSaveAs, &F::SaveCurrentAs, &F::HasEditor},
      {cmSaveAll, sSaveAll, &F::SaveAll, &F::HasModules},
      {cmClose, sClose, &F::CloseCurrent, &F::HasEditor},
      {cmCloseAll, sCloseAll, &F::CloseAll, &F::HasModules},
      {cmExit, sExit, &F::Exit},
      {cmUndo, sUndo, &F::Undo, &F::CanUndo},
      {cmRedo, sRedo, &F::Redo, &F::CanRedo},
      {cmCut, sCut, &F::Cut, &F::HasSelection},
      {cmCopy, sCopy, &F::Copy, &F::HasSelection},
      {cmPaste, sPaste, &F::Paste, &F::CanEdit},
      {cmSelectAll, sSelectAll, &F::SelectAll, &F::HasEditor},
      {cmFind, sFind, &F::Find, &F::HasEditor},
      {cmFindNext, sFindNext, &F::FindNext, &F::HasEditor},
      {cmReplace, sReplace, &F::Replace, &F::CanEdit},
      {cmGoToLine, sGoToLine, &F::GoToLine, &F::HasEditor},
      {cmToggleTree, sViewTree, &F::ToggleTree},
      {cmToggleMessages, sViewMessages, &F::ToggleMessages},
      {cmToggleForm, sToggleForm, &F::ToggleForm, &F::HasForm},
      {cmNextEditor, sNextEditor, &F::NextEditor, &F::HasEditor},
      {cmAddToProject, sAddToProject, &F::AddToProject, &F::HasProject},
      {cmRemoveFromProject, sRemoveFromProject, &F::RemoveFromProject, &F::HasSelectedModule},
      {cmAddProject, sAddProject, &F::AddProject, &F::HasProject},
      {cmSetActive, sSetActive, &F::SetActiveProject, &F::HasSelectedProject},
      {cmCloseProject, sCloseProject, &F::CloseProject, &F::HasSelectedProject},
      {cmSaveGroupAs, sSaveGroupAs, &F::SaveGroupAs, &F::HasProject},
      {cmCommands, sCommands, &F::ShowCommands},
      {cmOptions, sOptions, &F::ShowOptions},
      {cmContents, sContents, &F::ShowContents},
      {cmAbout, sAbout, &F::ShowAbout},
  };
  static_assert(std::size(commands) == cmLast - cmFirst + 1);
  return id < cmFirst || id > cmLast ? nullptr : &commands[id - cmFirst];
}

const std::vector<TMainFrame::TCommandMenu>& TMainFrame::CommandMenus() {
  static const std::vector<TCommandMenu> menus{
      {sMenuFile,
       {cmNewMenu, cmOpen, cmOpenProject, cmRecentMenu, cmSeparator, cmReload, cmSave, cmSaveAs, cmSaveAll,
        cmSeparator, cmClose, cmCloseAll, cmSeparator, cmExit}},
      {sMenuEdit, {cmUndo, cmRedo, cmSeparator, cmCut, cmCopy, cmPaste, cmSeparator, cmSelectAll}},
      {sMenuSearch, {cmFind, cmFindNext, cmReplace, cmSeparator, cmGoToLine}},
      {sMenuView, {cmToggleTree, cmToggleMessages, cmSeparator, cmToggleForm, cmNextEditor}},
      {sMenuProject,
       {cmAddToProject, cmRemoveFromProject, cmSeparator, cmAddProject, cmSetActive, cmCloseProject,
        cmSeparator, cmSaveGroupAs}},
      {sMenuTools, {cmCommands, cmSeparator, cmOptions}},
      {sMenuHelp, {cmContents, cmSeparator, cmAbout}},
  };
  return menus;
}

void TMainFrame::AppendCommand(wxMenu& menu, int id) {
  if (id == cmSeparator) {
    menu.AppendSeparator();
  } else if (id == cmNewMenu) {
    menu.AppendSubMenu(CreateMenu({sMenuNew, {cmNewUnit, cmNewProject, cmSeparator, cmNewOther}}),
                       ToWx(sMenuNew));
  } else if (id == cmRecentMenu) {
    recentMenu_ = new wxMenu;
    menu.AppendSubMenu(recentMenu_, ToWx(sMenuRecent));
    FillRecentMenu();
  } else {
    menu.Append(id, ToWx(FindCommand(id)->Caption));
  }
}

wxMenu* TMainFrame::CreateMenu(const TCommandMenu& description) {
  auto* menu = new wxMenu;
  for (const int id : description.Commands) AppendCommand(*menu, id);
  return menu;
}

void TMainFrame::CreateMenus() {
  auto* bar = new wxMenuBar;
  for (const auto& description : CommandMenus()) {
    bar->Append(CreateMenu(description), ToWx(description.Caption));
    if (description.Caption.Text == sMenuView.Text) viewMenu_ = bar->GetMenu(bar->GetMenuCount() - 1);
  }
  SetMenuBar(bar);
  Bind(wxEVT_MENU, &TMainFrame::OnCommand, this, cmFirst, cmRecentLast);
  Bind(wxEVT_UPDATE_UI, &TMainFrame::OnUpdateCommand, this, cmFirst, cmLast);
}

void TMainFrame::FillRecentMenu() {
  while (recentMenu_->GetMenuItemCount() > 0) recentMenu_->Destroy(recentMenu_->FindItemByPosition(0));
  if (recent_.Files().empty()) recentMenu_->Append(wxID_ANY, ToWx(sNoRecent))->Enable(false);
  int id = cmRecentFirst;
  for (const auto& file : recent_.Files()) {
    wxString caption = ToWx(file);
    caption.Replace("&", "&&");
    recentMenu_->Append(id, wxString::Format("&%d %s", id - cmRecentFirst + 1, caption));
    ++id;
  }
}

void TMainFrame::FillTreeMenu(wxMenu& menu, const std::string& fileName) {
  const bool module = tree_->SelectedModule() >= 0;
  const auto commands =
      module ? std::vector<int>{cmRemoveFromProject}
             : std::vector<int>{cmSetActive, cmAddToProject, cmSeparator, cmCloseProject, cmSaveGroupAs};
  for (const int id : commands) AppendCommand(menu, id);
  menu.AppendSeparator();
  menus_->AppendFileMenus(menu, fileName);
}

void TMainFrame::FillTabMenu(wxMenu& menu, const std::string& fileName) {
  for (const int id : {cmSave, cmReload, cmSeparator, cmClose, cmSeparator}) AppendCommand(menu, id);
  menus_->AppendFileMenus(menu, fileName);
}

void TMainFrame::OnCommand(wxCommandEvent& event) {
  if (const TCommand* command = FindCommand(event.GetId()))
    return RunShowingErrors([&] { (this->*command->Run)(); });
  const auto recent = static_cast<std::size_t>(event.GetId() - cmRecentFirst);
  if (recent < recent_.Files().size()) OpenForUser(std::string(recent_.Files()[recent]));
}

void TMainFrame::OnUpdateCommand(wxUpdateUIEvent& event) {
  const TCommand* command = FindCommand(event.GetId());
  event.Enable(!command->Enabled || (this->*command->Enabled)());
}

bool TMainFrame::HasEditor() const { return book_->FrontPage() != nullptr; }
bool TMainFrame::CanEdit() const { return HasEditor() && !book_->FrontPage()->GetReadOnly(); }
bool TMainFrame::CanUndo() const { return CanEdit() && book_->FrontPage()->CanUndo(); }
bool TMainFrame::CanRedo() const { return CanEdit() && book_->FrontPage()->CanRedo(); }
bool TMainFrame::HasSelection() const { return HasEditor() && !book_->FrontPage()->GetSelectionEmpty(); }
bool TMainFrame::HasProject() const { return workspace_.ActiveProject() != nullptr; }
bool TMainFrame::HasModules() const { return !workspace_.Modules().InOrder().empty(); }
bool TMainFrame::HasForm() const {
  const TOpenModule* module =
      HasEditor() ? workspace_.Modules().Find(book_->FrontPage()->Editor().FileName()) : nullptr;
  return module && module->Documents().size() > 1;
}
bool TMainFrame::HasSelectedProject() const { return tree_->SelectedProject() != nullptr; }
bool TMainFrame::HasSelectedModule() const { return tree_->SelectedModule() >= 0; }

void TMainFrame::NewUnit() { workspace_.NewUnit(services_.GetStartupDirectory()); }

void TMainFrame::NewProject() {
  wxString name = AskFile(sNewProjectTitle, sOneProjectFilter, wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
  if (name.empty()) return;
  std::string file = name.utf8_string();
  if (!SameText(ExtractFileExt(file), kProjectExt)) file += kProjectExt;
  if (workspace_.NewProject(file)) OpenForUser(file);
}

void TMainFrame::NewOther() {
  const auto wizard = ChooseWizard(this, services_.Categories(), services_.Wizards().Wizards());
  if (wizard) services_.Caller().Run(wizard->GetName(), [&] { wizard->Execute(); });
}

void TMainFrame::OpenFiles() {
  const wxString name = AskFile(sOpenTitle, sAllFilesFilter, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
  if (!name.empty()) OpenForUser(name.utf8_string());
}

void TMainFrame::OpenProject() {
  const wxString name = AskFile(sOpenProjectTitle, sProjectFilter, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
  if (!name.empty()) OpenForUser(name.utf8_string());
}

void TMainFrame::ReloadCurrent() { workspace_.Reload(book_->FrontPage()->Editor().FileName()); }

void TMainFrame::SaveCurrent() {
  TTextEditor& editor = book_->FrontPage()->Editor();
  workspace_.Save(editor);
  SetStatusText(ToWx(Format(sSaved, {ExtractFileName(editor.FileName())})));
}

void TMainFrame::SaveCurrentAs() {
  if (auto* unit = dynamic_cast<TUnit*>(workspace_.CurrentModule())) workspace_.SaveUnitAs(*unit);
}

void TMainFrame::SaveAll() { workspace_.SaveAll(); }

void TMainFrame::CloseCurrent() {
  if (TOpenModule* module = workspace_.CurrentModule()) workspace_.Close(*module);
}

void TMainFrame::CloseAll() { workspace_.CloseAll(); }
void TMainFrame::Exit() { Close(); }
void TMainFrame::Undo() { book_->FrontPage()->Undo(); }
void TMainFrame::Redo() { book_->FrontPage()->Redo(); }
void TMainFrame::Cut() { book_->FrontPage()->Cut(); }
void TMainFrame::Copy() { book_->FrontPage()->Copy(); }
void TMainFrame::Paste() { book_->FrontPage()->Paste(); }
void TMainFrame::SelectAll() { book_->FrontPage()->SelectAll(); }
void TMainFrame::Find() { find_->Show(false); }
void TMainFrame::FindNext() { find_->FindNext(); }
void TMainFrame::Replace() { find_->Show(true); }

void TMainFrame::GoToLine() {
  TEditorPage* page = book_->FrontPage();
  const long last = page->GetLineCount();
  const long line = wxGetNumberFromUser("", ToWx(Format(sGoToPrompt, {static_cast<long long>(last)})),
                                        ToWx(sGoToTitle), page->GetCurrentLine() + 1, 1, last, this);
  if (line > 0) page->GotoLine(static_cast<int>(line) - 1);
}

void TMainFrame::ToggleTree() {
  const int width = TWindowState::Load(services_.Options().PropertySet(kWindowSet)).TreeWidth;
  if (columns_->IsSplit())
    columns_->Unsplit(treePanel_);
  else
    columns_->SplitVertically(treePanel_, rows_, FromDIP(width));
  treePanel_->Show(columns_->IsSplit());
}

void TMainFrame::ToggleMessages() {
  const int height = TWindowState::Load(services_.Options().PropertySet(kWindowSet)).MessagesHeight;
  if (rows_->IsSplit())
    rows_->Unsplit(messagePanel_);
  else
    rows_->SplitHorizontally(book_, messagePanel_, -FromDIP(height));
  messagePanel_->Show(rows_->IsSplit());
}

void TMainFrame::ToggleForm() {
  const TTextEditor& front = book_->FrontPage()->Editor();
  const auto& documents = workspace_.CurrentModule()->Documents();
  const auto other =
      std::ranges::find_if(documents, [&](const auto& document) { return document.get() != &front; });
  book_->ShowEditor(static_cast<TTextEditor&>(**other));
}

void TMainFrame::NextEditor() { book_->AdvanceSelection(); }

void TMainFrame::AddToProject() {
  const std::string directory = ExtractFileDir(workspace_.ActiveProject()->FileName());
  wxFileDialog dialog(this, ToWx(sAddToProjectTitle), ToWx(directory), "", ToWx(sUnitFilter),
                      wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_MULTIPLE);
  if (dialog.ShowModal() != wxID_OK) return;
  wxArrayString paths;
  dialog.GetPaths(paths);
  std::vector<std::string> files;
  for (const auto& path : paths) files.push_back(path.utf8_string());
  const auto added = static_cast<long long>(workspace_.AddToProject(files));
  SetStatusText(ToWx(Format(sAddedFiles, {added})));
}

void TMainFrame::RemoveFromProject() {
  workspace_.RemoveFromProject(*tree_->SelectedProject(), tree_->SelectedModule());
}

void TMainFrame::AddProject() {
  const wxString name = AskFile(sAddProjectTitle, sOneProjectFilter, wxFD_OPEN | wxFD_FILE_MUST_EXIST);
  if (!name.empty()) workspace_.OpenProject(name.utf8_string(), false);
}

void TMainFrame::SetActiveProject() { workspace_.SetActiveProject(*tree_->SelectedProject()); }
void TMainFrame::CloseProject() { workspace_.Close(*tree_->SelectedProject()); }
void TMainFrame::SaveGroupAs() { workspace_.SaveGroupAs(); }

void TMainFrame::ShowCommands() {
  menus_->RefreshAll();
  if (const TAction* action = ChooseAction(this, *menus_))
    services_.Caller().Run(action->Name, [&] { action->OnExecute(); });
}

void TMainFrame::ShowOptions() {
  if (!ShowOptionsDialog(this, services_)) return;
  book_->SetFontSize(services_.Options()
                         .PropertySet(kGeneralSet)
                         .GetNumber(kFontSizeField, kDefaultFontSize, kMinFontSize, kMaxFontSize));
}

void TMainFrame::ShowContents() { services_.Application().HelpKeyword({}); }

void TMainFrame::ShowAbout() {
  wxMessageBox(ToWx(Format(sAboutText, {kWorkbenchVersion, packages_.Describe()})), ToWx(sProgramName),
               wxOK | wxICON_INFORMATION, this);
}

void TMainFrame::AddWizards() {
  auto* category = services_.Categories().InOrder().front().get();
  const auto add = [&](const TResString& name, const TResString& comment, TIcon icon,
                       void (TMainFrame::*run)()) {
    auto wizard = std::make_shared<TOwnWizard>(name, comment, IconSvg(icon), category, [this, run] {
      RunShowingErrors([this, run] { (this->*run)(); });
    });
    ownWizards_.push_back(services_.Wizards().AddWizard(std::move(wizard)));
  };
  add(sWizardUnitName, sWizardUnitComment, TIcon::NewUnit, &TMainFrame::NewUnit);
  add(sWizardProjectName, sWizardProjectComment, TIcon::NewProject, &TMainFrame::NewProject);
}

void TMainFrame::OfferPackageWindows() { AppendPackageWindows(*this, *viewMenu_); }

}  // namespace kestrel::workbench
