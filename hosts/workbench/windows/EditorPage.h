// An editor page: a text with syntax colouring.
#pragma once

#include <wx/stc/stc.h>

#include <optional>
#include <vector>

#include "workbench/model/Editors.h"

namespace kestrel::workbench {

/// Notifications to the window that holds the pages.
class IEditorPageOwner {
 public:
  virtual ~IEditorPageOwner() = default;
  virtual void PageChanged(TTextEditor& editor) = 0;
  virtual void CaretMoved() = 0;
  /// The user typed into a read-only text; `key` is null if it was not by a key.
  virtual void TypingRefused(TTextEditor& editor, const wxKeyEvent* key) = 0;
};

class TEditorPage final : public wxStyledTextCtrl, public IDocumentView {
 public:
  /// Attaches itself to `editor`, which must outlive the page or be released by Detach.
  TEditorPage(wxWindow* parent, IEditorPageOwner& owner, TTextEditor& editor, int fontSize);
  TTextEditor& Editor() const { return editor_; }
  void Detach() { editor_.AttachView(nullptr); }

  std::string ReadText() const override;
  void ShowText(const std::string& text) override;
  bool HasChanges() const override { return GetModify(); }
  void MarkSaved() override { SetSavePoint(); }
  void LockText(bool locked) override { SetReadOnly(locked); }
  /// Types at the end as a user would. False if the page is read-only.
  bool TypeAtEnd(const std::string& text);
  /// Handles keys that were pressed earlier.
  void Type(const std::vector<wxKeyEvent>& keys);

 private:
  void ReplaceText(const std::string& text);
  IEditorPageOwner& owner_;
  TTextEditor& editor_;
  std::optional<wxKeyEvent> key_;  // the last one, unless it was refused
  bool filled_ = false;
  bool replacing_ = false;
};

}  // namespace kestrel::workbench
