#include "workbench/model/Editors.h"

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
