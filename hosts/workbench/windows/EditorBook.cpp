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
  void TypingRefused(TTextEditor& editor) override {
    wxBell();
    book_.hooks_.Status(Format(sCannotType, {ExtractFileName(editor.FileName())}));
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
      for (std::size_t i = 0; i < GetPageCount(); ++i)
        if (PageAt(i)->Editor().FileName() == file) return hooks_.CloseWanted(PageAt(i)->Editor());
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
  TEditorPage* page = PageOf(editor);
  if (!page) return;
  const auto index = static_cast<std::size_t>(GetPageIndex(page));
  const std::string name = ExtractFileName(editor.FileName());
  SetPageText(index, ToWx(editor.GetModified() ? "*" + name : name));
  SetPageBitmap(index, editor.IsReadOnly() ? IconBundle(TIcon::Lock) : wxBitmapBundle());
  SetPageToolTip(index, ToWx(editor.FileName()));
  hooks_.StateChanged();
}

void TEditorBook::SetFontSize(int points) {
  fontSize_ = points;
  for (std::size_t i = 0; i < GetPageCount(); ++i) ApplyPascalStyle(*PageAt(i), points);
}

}  // namespace kestrel::workbench
