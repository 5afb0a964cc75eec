#include "workbench/windows/EditorPage.h"

#include <algorithm>
#include <utility>

#include "toolkit/WxText.h"
#include "workbench/windows/PascalStyle.h"

namespace kestrel::workbench {

TEditorPage::TEditorPage(wxWindow* parent, IEditorPageOwner& owner, TTextEditor& editor, int fontSize)
    : wxStyledTextCtrl(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE),
      owner_(owner),
      editor_(editor) {
  SetName(ToWx(editor.FileName()));
  ApplyPascalStyle(*this, fontSize);
  editor_.AttachView(this);
  Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
    event.Skip();
    // As wide as the page: only longer lines bring a scroll bar, and a smaller width would look scrolled past the end.
    SetScrollWidth(std::max(1, GetClientSize().GetWidth() - GetMarginWidth(0) - GetMarginLeft()));
  });
  Bind(wxEVT_STC_CHANGE, [this](wxStyledTextEvent&) {
    if (!replacing_) editor_.TextModified();
  });
  const auto stateChanged = [this](wxStyledTextEvent&) { owner_.PageChanged(editor_); };
  Bind(wxEVT_STC_SAVEPOINTLEFT, stateChanged);
  Bind(wxEVT_STC_SAVEPOINTREACHED, stateChanged);
  Bind(wxEVT_STC_UPDATEUI, [this](wxStyledTextEvent&) { owner_.CaretMoved(); });
  const auto onKey = [this](wxKeyEvent& event) {
    event.Skip();
    key_ = event;
  };
  Bind(wxEVT_KEY_DOWN, onKey);
  Bind(wxEVT_CHAR, onKey);
  Bind(wxEVT_STC_ROMODIFYATTEMPT, [this](wxStyledTextEvent&) {
    const auto key = std::exchange(key_, {});  // one key may try twice, as when it replaces a selection
    owner_.TypingRefused(editor_, key ? &*key : nullptr);
  });
}

std::string TEditorPage::ReadText() const {
  // Raw bytes, so that text that is not UTF-8 is saved unchanged.
  auto* self = const_cast<TEditorPage*>(this);
  const wxCharBuffer raw = self->GetTextRaw();
  return {raw.data(), raw.length()};
}

void TEditorPage::ShowText(const std::string& text) {
  replacing_ = true;
  const bool readOnly = GetReadOnly();
  SetReadOnly(false);
  if (!filled_) {
    AddTextRaw(text.data(), static_cast<int>(text.size()));
    EmptyUndoBuffer();
    GotoPos(0);
    SetEOLMode(text.find("\r\n") == std::string::npos ? wxSTC_EOL_LF : wxSTC_EOL_CRLF);
  } else if (ReadText() != text) {
    ReplaceText(text);
  }
  filled_ = true;
  SetSavePoint();
  SetReadOnly(readOnly);
  replacing_ = false;
}

void TEditorPage::ReplaceText(const std::string& text) {
  // One undoable step, so that a reload over unsaved changes can be undone.
  const int line = GetCurrentLine();
  const int column = GetColumn(GetCurrentPos());
  const int top = GetFirstVisibleLine();
  BeginUndoAction();
  ClearAll();
  AddTextRaw(text.data(), static_cast<int>(text.size()));
  EndUndoAction();
  GotoPos(FindColumn(line, column));
  SetFirstVisibleLine(top);
}

bool TEditorPage::TypeAtEnd(const std::string& text) {
  if (GetReadOnly()) return false;
  DocumentEnd();
  AddTextRaw(text.data(), static_cast<int>(text.size()));
  return true;
}

void TEditorPage::Type(const std::vector<wxKeyEvent>& keys) {
  for (wxKeyEvent key : keys) ProcessWindowEvent(key);
}

}  // namespace kestrel::workbench
