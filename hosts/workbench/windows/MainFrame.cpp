#include "workbench/windows/MainFrame.h"

#include <wx/filedlg.h>
#include <wx/msgdlg.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include "system/Paths.h"
#include "system/System.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/CheckOutQuestion.h"
#include "workbench/windows/EditorBook.h"
#include "workbench/windows/FindDialog.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Icons.h"
#include "workbench/windows/MessagePane.h"
#include "workbench/windows/ModalStack.h"
#include "workbench/windows/ProjectTree.h"

namespace kestrel::workbench {

namespace {

enum TStatusField { sfText, sfPosition, sfState, sfProject, sfCount };
constexpr int kStatusWidths[] = {-1, 120, 90, 180};

/// A panel with a caption above its content.
wxPanel* CaptionedPanel(wxWindow* parent, const TResString& caption) {
  auto* panel = new wxPanel(parent);
  auto* label = new wxStaticText(panel, wxID_ANY, ToWx(caption));
  label->SetFont(label->GetFont().Bold().Smaller());
  auto* sizer = new wxBoxSizer(wxVERTICAL);
  sizer->Add(label, wxSizerFlags().Border(wxALL, panel->FromDIP(4)));
  panel->SetSizer(sizer);
  return panel;
}

void FillPanel(wxPanel* panel, wxWindow* content) {
  panel->GetSizer()->Add(content, wxSizerFlags(1).Expand());
}

}  // namespace

TMainFrame::TMainFrame(TIdeServices& services, const TPackageLoader& packages)
    : wxFrame(nullptr, wxID_ANY, ToWx(sProgramName)),
      services_(services),
      packages_(packages),
      workspace_(*this, services.Caller(), services.Notifications()),
      recent_(services.Options().PropertySet(kRecentSet)) {
  SetName(ToWx(sProgramName));
  wxIcon icon;
  icon.CopyFromBitmap(IconBundle(TIcon::Program).GetBitmap(wxSize(32, 32)));
  SetIcon(icon);
  CreateWindows();
  CreateMenus();
  menus_ = std::make_unique<TMenuBridge>(*this, services.Caller());
  services_.Publish<IOTAModuleServices>(moduleServices_);
  services_.Publish<IOTAEditorServices>(editorServices_);
  services_.Publish<IOTAActionServices>(actionServices_);
  services_.Publish<IOTAMenuServices>(*menus_);
  services_.Publish<IOTAFileStateServices>(fileStates_);
  AddWizards();
  Bind(wxEVT_CLOSE_WINDOW, &TMainFrame::OnClose, this);
  Bind(wxEVT_ACTIVATE, [this](wxActivateEvent& event) {
    event.Skip();
    if (event.GetActive()) CallAfter([this] { CheckFilesOnDisk(); });
  });
  Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
    event.Skip();
    if (!std::exchange(stateShown_, true)) ShowState();
  });
}

TMainFrame::~TMainFrame() {
  for (const int index : ownWizards_) services_.Wizards().RemoveWizard(index);
  services_.WithdrawWindowServices();
}

void TMainFrame::CreateWindows() {
  const auto state = TWindowState::Load(services_.Options().PropertySet(kWindowSet));
  const int fontSize = services_.Options()
                           .PropertySet(kGeneralSet)
                           .GetNumber(kFontSizeField, kDefaultFontSize, kMinFontSize, kMaxFontSize);
  const auto stateOf = [this](const std::string& file) -> const TFileState& {
    return fileStates_.StateOf(file);
  };
  columns_ = new wxSplitterWindow(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  treePanel_ = CaptionedPanel(columns_, sProjectTreeCaption);
  tree_ = new TProjectTree(
      treePanel_, workspace_,
      {[this](const std::string& file) { OpenForUser(file); },
       [this](wxMenu& menu, const std::string& file) { FillTreeMenu(menu, file); }, stateOf});
  FillPanel(treePanel_, tree_);
  rows_ = new wxSplitterWindow(columns_, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxSP_LIVE_UPDATE);
  book_ =
      new TEditorBook(rows_,
                      {[this] { StateChanged(); },
                       [this](TTextEditor& editor) {
                         RunShowingErrors([&] {
                           if (auto* module = workspace_.Modules().Find(editor.FileName()))
                             workspace_.Close(*module);
                         });
                       },
                       [this](const std::string& text) { SetStatusText(ToWx(text), sfText); }, stateOf,
                       [this](const std::string& file, const wxKeyEvent& key) {
                         return checkOutQuestion_->OnTyping(file, key);
                       },
                       [this](wxMenu& menu, TTextEditor& editor) { FillTabMenu(menu, editor.FileName()); }},
                      fontSize);
  checkOutQuestion_ = std::make_unique<TCheckOutQuestion>(*this, *book_, fileStates_, services_.Caller());
  messagePanel_ = CaptionedPanel(rows_, sMessagesCaption);
  messages_ = new TMessagePane(messagePanel_);
  FillPanel(messagePanel_, messages_);
  find_ = std::make_unique<TFindReplace>(
      this, [this]() -> wxStyledTextCtrl* { return book_->FrontPage(); },
      [this](const std::string& text) { SetStatusText(ToWx(text), sfText); });

  CreateStatusBar(sfCount);
  int widths[sfCount];
  for (int i = 0; i < sfCount; ++i)
    widths[i] = kStatusWidths[i] < 0 ? kStatusWidths[i] : FromDIP(kStatusWidths[i]);
  SetStatusWidths(sfCount, widths);

  SetSize(FromDIP(wxSize(state.Width, state.Height)));
  SetMinSize(FromDIP(wxSize(480, 320)));
  columns_->SetMinimumPaneSize(FromDIP(60));
  rows_->SetMinimumPaneSize(FromDIP(40));
  rows_->SetSashGravity(1.0);
  columns_->SplitVertically(treePanel_, rows_, FromDIP(state.TreeWidth));
  rows_->SplitHorizontally(book_, messagePanel_);
  // The frame gets its final size when it is shown; sash positions are relative to the bottom of that size.
  CallAfter([this, height = FromDIP(state.MessagesHeight)] { rows_->SetSashPosition(-height); });
  Centre();
  if (state.Maximized) Maximize();
}

void TMainFrame::SaveWindowState() {
  TWindowState state = TWindowState::Load(services_.Options().PropertySet(kWindowSet));
  state.Maximized = IsMaximized();
  if (!state.Maximized) {
    state.Width = ToDIP(GetSize()).GetWidth();
    state.Height = ToDIP(GetSize()).GetHeight();
  }
  if (columns_->IsSplit()) state.TreeWidth = ToDIP(columns_->GetSashPosition());
  if (rows_->IsSplit())
    state.MessagesHeight = ToDIP(rows_->GetClientSize().GetHeight() - rows_->GetSashPosition());
  try {
    state.Save(services_.Options().PropertySet(kWindowSet));
  } catch (const std::exception& e) {
    AddMessage(e.what());
  }
}

void TMainFrame::AddMessage(const std::string& line) { messages_->AddLine(line); }

void TMainFrame::StateChanged() {
  stateShown_ = false;
  wxWakeUpIdle();
}

void TMainFrame::ShowState() {
  const TEditorPage* page = book_ ? book_->FrontPage() : nullptr;
  const TProject* project = workspace_.ActiveProject();
  TTextEditor* editor = page ? &page->Editor() : nullptr;
  const int position = page ? page->GetCurrentPos() : 0;
  SetStatusText(page ? ToWx(Format(sPosition,
                                   {page->LineFromPosition(position) + 1LL, page->GetColumn(position) + 1LL}))
                     : wxString(),
                sfPosition);
  SetStatusText(ToWx(!editor                 ? std::string()
                     : editor->IsReadOnly()  ? sReadOnlyState.str()
                     : editor->GetModified() ? sModifiedState.str()
                                             : std::string()),
                sfState);
  SetStatusText(ToWx(project ? ExtractFileName(project->FileName()) : sNoOpenProject.str()), sfProject);
  const std::string shown = editor ? editor->FileName() : project ? project->FileName() : std::string();
  // A hint applies to one file only.
  const wxString about = ToWx(shown + (editor && editor->IsReadOnly() ? sReadOnlyState.str() : ""));
  if (std::exchange(hintedFile_, about) != about) SetStatusText(wxString(), sfText);
  SetTitle(ToWx(shown.empty() ? sProgramName.str() : Format(sFrameTitle, {shown})));
}

void TMainFrame::EditorOpened(TTextEditor& editor) { book_->AddEditor(editor); }
void TMainFrame::EditorClosing(TTextEditor& editor) {
  checkOutQuestion_->Forget(editor.FileName());
  book_->RemoveEditor(editor);
}
void TMainFrame::ShowEditor(TTextEditor& editor) { book_->ShowEditor(editor); }
void TMainFrame::EditorChanged(TTextEditor& editor) {
  if (!editor.IsReadOnly()) checkOutQuestion_->Forget(editor.FileName());
  book_->RefreshEditor(editor);
}

void TMainFrame::ShowFileStates(const std::vector<TFileState>& states) {
  tree_->ShowStates(states);
  book_->RefreshEditors();
}

TTextEditor* TMainFrame::ActiveEditor() {
  TEditorPage* page = book_->FrontPage();
  return page ? &page->Editor() : nullptr;
}

void TMainFrame::ProjectsChanged() {
  tree_->Rebuild();
  StateChanged();
}

TSaveAnswer TMainFrame::AskSave(const std::string& fileName) {
  wxMessageDialog box(this, ToWx(Format(sAskSave, {ExtractFileName(fileName)})), ToWx(sProgramName),
                      wxYES_NO | wxCANCEL | wxICON_QUESTION);
  box.SetExtendedMessage(ToWx(sAskSaveHint));
  box.SetYesNoLabels(ToWx(sAskSaveYes), ToWx(sAskSaveNo));
  switch (box.ShowModal()) {
    case wxID_YES:
      return TSaveAnswer::Save;
    case wxID_NO:
      return TSaveAnswer::Discard;
    default:
      return TSaveAnswer::Cancel;
  }
}

bool TMainFrame::AskReload(const std::string& fileName) {
  wxMessageDialog box(this, ToWx(Format(sAskReload, {fileName})), ToWx(sProgramName),
                      wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION);
  box.SetExtendedMessage(ToWx(sAskReloadHint));
  box.SetYesNoLabels(ToWx(sAskReloadYes), ToWx(sAskReloadNo));
  return box.ShowModal() == wxID_YES;
}

wxString TMainFrame::AskFile(const TResString& title, const TResString& filter, long style,
                             const std::string& proposed) {
  const TProject* project = workspace_.ActiveProject();
  const std::string directory = !proposed.empty() ? ExtractFileDir(proposed)
                                : project         ? ExtractFileDir(project->FileName())
                                                  : services_.GetStartupDirectory();
  wxFileDialog dialog(this, ToWx(title), ToWx(directory), ToWx(ExtractFileName(proposed)), ToWx(filter),
                      style);
  return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

std::string TMainFrame::AskSaveName(const std::string& proposed) {
  const bool group = SameText(ExtractFileExt(proposed), kGroupExt);
  const std::string name =
      AskFile(sSaveAsTitle, group ? sGroupFilter : sUnitFilter, wxFD_SAVE | wxFD_OVERWRITE_PROMPT, proposed)
          .utf8_string();
  const bool needsExt = group && !name.empty() && !SameText(ExtractFileExt(name), kGroupExt);
  return needsExt ? name + kGroupExt : name;
}

void TMainFrame::RunShowingErrors(const std::function<void()>& operation) {
  try {
    operation();
  } catch (const std::exception& e) {
    wxMessageBox(ToWx(e.what()), ToWx(sProgramName), wxOK | wxICON_ERROR, this);
  }
}

void TMainFrame::OpenForUser(const std::string& fileName) {
  RunShowingErrors([&] {
    if (!workspace_.Open(fileName)) return;
    const std::string extension = ExtractFileExt(fileName);
    if (!SameText(extension, kProjectExt) && !SameText(extension, kGroupExt)) return;
    services_.Caller().Run(sMenuRecent, [&] { recent_.Add(FullPath(fileName)); });
    FillRecentMenu();
  });
}

void TMainFrame::CheckFilesOnDisk() {
  // Not while a dialog is open: its command works on the files, and a question would interrupt it.
  if (checkingFiles_ || TModalStack::Top()) return;
  checkingFiles_ = true;
  RunShowingErrors([this] { workspace_.CheckDisk(); });
  checkingFiles_ = false;
}

void TMainFrame::OnClose(wxCloseEvent& event) {
  bool closed = false;
  if (event.CanVeto() && services_.Caller().IsRunning()) {
    AddMessage(sCommandRunning);
    return event.Veto();
  }
  if (event.CanVeto()) {
    RunShowingErrors([&] { closed = workspace_.CloseAll(); });
    if (!closed) return event.Veto();
  } else {
    workspace_.CloseAllWithoutSaving();
  }
  SaveWindowState();
  // The frame exists until the packages are finalized, because they remove their menus from it.
  Hide();
  wxTheApp->ExitMainLoop();
}

}  // namespace kestrel::workbench
