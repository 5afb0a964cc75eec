#include "workbench/windows/FindDialog.h"

#include <wx/stc/stc.h>

#include "system/Text.h"
#include "toolkit/WxText.h"
#include "workbench/windows/FrameStrings.h"

namespace kestrel::workbench {

namespace {
wxString Title(const TResString& caption) {
  return wxControl::RemoveMnemonics(ToWx(caption).BeforeFirst('.'));
}
}  // namespace

TFindReplace::TFindReplace(wxWindow* parent, std::function<wxStyledTextCtrl*()> editor,
                           std::function<void(const std::string&)> status)
    : parent_(parent), editor_(std::move(editor)), status_(std::move(status)) {}

TFindReplace::~TFindReplace() { delete dialog_.get(); }

void TFindReplace::Show(bool replace) {
  if (dialog_) dialog_->Destroy();
  if (wxStyledTextCtrl* editor = editor_()) {
    const wxString selected = editor->GetSelectedText();
    if (!selected.empty() && !selected.Contains("\n")) data_.SetFindString(selected);
  }
  dialog_ = new wxFindReplaceDialog(parent_, &data_, Title(replace ? sReplace : sFind),
                                    replace ? wxFR_REPLACEDIALOG : 0);
  for (const auto type : {wxEVT_FIND, wxEVT_FIND_NEXT})
    dialog_->Bind(type, [this](wxFindDialogEvent&) { Step(); });
  dialog_->Bind(wxEVT_FIND_REPLACE, [this](wxFindDialogEvent&) { ReplaceOne(); });
  dialog_->Bind(wxEVT_FIND_REPLACE_ALL, [this](wxFindDialogEvent&) { ReplaceAll(); });
  dialog_->Bind(wxEVT_FIND_CLOSE, [dialog = dialog_.get()](wxFindDialogEvent&) { dialog->Destroy(); });
  dialog_->Show();
}

int TFindReplace::SearchFlags() const {
  int flags = 0;
  if (data_.GetFlags() & wxFR_MATCHCASE) flags |= wxSTC_FIND_MATCHCASE;
  if (data_.GetFlags() & wxFR_WHOLEWORD) flags |= wxSTC_FIND_WHOLEWORD;
  return flags;
}

void TFindReplace::FindNext() {
  if (data_.GetFindString().empty())
    Show(false);
  else
    Step();
}

bool TFindReplace::Step() {
  wxStyledTextCtrl* editor = editor_();
  if (!editor) return false;
  const bool down = data_.GetFlags() & wxFR_DOWN;
  const auto search = [&](int from) {
    editor->SetSelection(from, from);
    editor->SearchAnchor();
    return down ? editor->SearchNext(SearchFlags(), data_.GetFindString())
                : editor->SearchPrev(SearchFlags(), data_.GetFindString());
  };
  const int before = down ? editor->GetSelectionEnd() : editor->GetSelectionStart();
  int found = search(before);
  if (found == wxSTC_INVALID_POSITION) found = search(down ? 0 : editor->GetTextLength());  // wraps around
  if (found == wxSTC_INVALID_POSITION) {
    editor->SetSelection(before, before);
    status_(Format(sNotFoundText, {data_.GetFindString().utf8_string()}));
    return false;
  }
  editor->EnsureCaretVisible();
  return true;
}

bool TFindReplace::SelectionMatches(wxStyledTextCtrl& editor) const {
  const bool sameCase = data_.GetFlags() & wxFR_MATCHCASE;
  return editor.GetSelectedText().IsSameAs(data_.GetFindString(), sameCase);
}

void TFindReplace::ReplaceOne() {
  wxStyledTextCtrl* editor = editor_();
  if (!editor) return;
  if (SelectionMatches(*editor)) editor->ReplaceSelection(data_.GetReplaceString());
  Step();
}

void TFindReplace::ReplaceAll() {
  wxStyledTextCtrl* editor = editor_();
  if (!editor || data_.GetFindString().empty()) return;
  int count = 0;
  editor->BeginUndoAction();
  editor->SetSearchFlags(SearchFlags());
  for (int from = 0;; ++count) {
    editor->SetTargetRange(from, editor->GetTextLength());
    if (editor->SearchInTarget(data_.GetFindString()) == wxSTC_INVALID_POSITION) break;
    editor->ReplaceTarget(data_.GetReplaceString());
    if (editor->GetReadOnly()) break;
    from = editor->GetTargetEnd();
  }
  editor->EndUndoAction();
  status_(Format(sReplacedCount, {static_cast<long long>(count)}));
}

}  // namespace kestrel::workbench
