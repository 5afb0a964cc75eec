#include "workbench/windows/EditorBook.h"

#include <wx/menu.h>

#include "system/Paths.h"
#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"
#include "workbench/windows/Icons.h"
#include "workbench/windows/PascalStyle.h"

namespace kestrel::workbench {

class TEditorBook::TPageOwner final : public IEditorPageOwner {
 public:
  explicit TPageOwner(TEditorBook& book) : book_(book) {}
  void PageChanged(TTextEditor& editor) override { book_.RefreshEditor(editor); }
  void CaretMoved() override { book_.hooks_.StateChanged(); }
  void TypingRefused(TTextEditor& editor, const wxKeyEvent* key) override {
    if (!key || !book_.hooks_.TypingRefused(editor.FileName(), *key)) book_.ShowReadOnlyHint(editor);
  }

 private:
  TEditorBook& book_;
};

TEditorBook::TEditorBook(wxWindow* parent, THooks hooks, int fontSize)
    : wxAuiNotebook(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                    wxAUI_NB_TOP | wxAUI_NB_TAB_MOVE | wxAUI_NB_SCROLL_BUTTONS |
                        wxAUI_NB_CLOSE_ON_ACTIVE_TAB | wxAUI_NB_WINDOWLIST_BUTTON |
                        wxAUI_NB_MIDDLE_CLICK_CLOSE | wxBORDER_NONE),
      hooks_(std::move(hooks)),
      owner_(std::make_shared<TPageOwner>(*this)),
      fontSize_(fontSize) {
  Bind(wxEVT_AUINOTEBOOK_PAGE_CHANGED, [this](wxAuiNotebookEvent& event) {
    event.Skip();
    if (TEditorPage* page = FrontPage()) {
      page->SetFocus();
      page->Editor().Activated();
    }
    hooks_.StateChanged();
  });
  Bind(wxEVT_AUINOTEBOOK_TAB_RIGHT_UP, [this](wxAuiNotebookEvent& event) {
    SetSelection(static_cast<std::size_t>(event.GetSelection()));
    wxMenu menu;
    hooks_.FillTabMenu(menu, FrontPage()->Editor());
    PopupMenu(&menu);
  });
  Bind(wxEVT_AUINOTEBOOK_PAGE_CLOSE, [this](wxAuiNotebookEvent& event) {
    // The workspace decides, and removes the page after this event.
    event.Veto();
    const std::string file = PageAt(static_cast<std::size_t>(event.GetSelection()))->Editor().FileName();
    CallAfter([this, file] {
      if (TEditorPage* page = PageOf(file)) hooks_.CloseWanted(page->Editor());
    });
  });
}

TEditorPage* TEditorBook::FrontPage() const {
  const int front = GetSelection();
  return front == wxNOT_FOUND ? nullptr : PageAt(static_cast<std::size_t>(front));
}

TEditorPage* TEditorBook::PageOf(const TTextEditor& editor) const {
  for (std::size_t i = 0; i < GetPageCount(); ++i)
    if (&PageAt(i)->Editor() == &editor) return PageAt(i);
  return nullptr;
}

TEditorPage* TEditorBook::PageOf(const std::string& fileName) const {
  for (std::size_t i = 0; i < GetPageCount(); ++i)
    if (PageAt(i)->Editor().FileName() == fileName) return PageAt(i);
  return nullptr;
}

void TEditorBook::AddEditor(TTextEditor& editor) {
  auto* page = new TEditorPage(this, *owner_, editor, fontSize_);
  AddPage(page, ToWx(ExtractFileName(editor.FileName())), false);
  RefreshEditor(editor);
}

void TEditorBook::RemoveEditor(TTextEditor& editor) {
  TEditorPage* page = PageOf(editor);
  if (!page) return;
  page->Detach();
  DeletePage(static_cast<std::size_t>(GetPageIndex(page)));
  hooks_.StateChanged();
}

void TEditorBook::ShowEditor(TTextEditor& editor) {
  TEditorPage* page = PageOf(editor);
  if (!page) return;
  SetSelection(static_cast<std::size_t>(GetPageIndex(page)));
  page->SetFocus();
}

void TEditorBook::RefreshEditor(TTextEditor& editor) {
  if (TEditorPage* page = PageOf(editor)) RefreshPage(static_cast<std::size_t>(GetPageIndex(page)));
}

void TEditorBook::RefreshEditors() {
  for (std::size_t i = 0; i < GetPageCount(); ++i) RefreshPage(i);
}

void TEditorBook::RefreshPage(std::size_t index) {
  TTextEditor& editor = PageAt(index)->Editor();
  const std::string name = ExtractFileName(editor.FileName());
  const TFileState& state = hooks_.StateOf(editor.FileName());
  SetPageText(index, ToWx(editor.GetModified() ? "*" + name : name));
  SetPageBitmap(index, TabImage(state.Mark, editor.IsReadOnly()));
  SetPageToolTip(index, FileHint(editor.FileName(), state));
  hooks_.StateChanged();
}

void TEditorBook::ShowReadOnlyHint(TTextEditor& editor) {
  wxBell();
  hooks_.Status(Format(sCannotType, {ExtractFileName(editor.FileName())}));
}

void TEditorBook::SetFontSize(int points) {
  fontSize_ = points;
  for (std::size_t i = 0; i < GetPageCount(); ++i) ApplyPascalStyle(*PageAt(i), points);
}

}  // namespace kestrel::workbench
