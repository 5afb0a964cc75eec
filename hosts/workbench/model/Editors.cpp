#include "workbench/model/Editors.h"

#include <algorithm>
#include <stdexcept>

#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace {

/// The editor control needs time and memory of many times a line's length to measure it.
constexpr std::size_t kMaxLine = 4 << 20;

std::size_t LongestLine(std::string_view text) {
  std::size_t longest = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    longest = std::max(longest, end);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return longest;
}

}  // namespace

void TTextEditor::AttachView(IDocumentView* view) {
  if (!view && view_) {
    text_ = view_->ReadText();
    ViewChanged(TOTAOperation::opRemove);
  }
  view_ = view;
  if (!view_) return;
  view_->ShowText(text_);
  view_->LockText(IsReadOnly());
  text_.clear();
  ViewChanged(TOTAOperation::opInsert);
}

void TTextEditor::SetNewText(const std::string& text) {
  SetContents(text);
  isNew_ = true;
}

void TTextEditor::TextModified() {
  Notify<IOTANotifier>("Modified", [](IOTANotifier& n) { n.Modified(); });
}

bool TTextEditor::GetModified() { return isNew_ || (view_ && view_->HasChanges()); }

std::string TTextEditor::Contents() const { return view_ ? view_->ReadText() : text_; }

void TTextEditor::SetContents(const std::string& text) {
  if (const std::size_t longest = LongestLine(text); longest > kMaxLine)
    throw std::runtime_error(Format(
        sLineTooLong, {FileName(), static_cast<long long>(longest), static_cast<long long>(kMaxLine)}));
  isNew_ = false;
  if (view_)
    view_->ShowText(text);
  else
    text_ = text;
}

void TTextEditor::MarkSaved() {
  isNew_ = false;
  if (view_) view_->MarkSaved();
}

void TTextEditor::ShowReadOnly(bool readOnly) {
  if (view_) view_->LockText(readOnly);
}

void TSourceEditor::Activated() {
  Notify<IOTAEditorNotifier>("ViewActivated", [](IOTAEditorNotifier& n) { n.ViewActivated(); });
}

void TSourceEditor::ViewChanged(TOTAOperation operation) {
  Notify<IOTAEditorNotifier>("ViewNotification",
                             [&](IOTAEditorNotifier& n) { n.ViewNotification(operation); });
}

void TFormEditor::Activated() {
  Notify<IOTAFormNotifier>("FormActivated", [](IOTAFormNotifier& n) { n.FormActivated(); });
}

void TFormEditor::AboutToSave() {
  Notify<IOTAFormNotifier>("FormSaving", [](IOTAFormNotifier& n) { n.FormSaving(); });
}

}  // namespace kestrel::workbench
