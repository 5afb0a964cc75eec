// Editors of modules: texts shown in a window, and the definitions of projects and groups.
#pragma once

#include <optional>
#include <string>

#include "workbench/model/Document.h"
#include "workbench/model/ProjectFile.h"

namespace kestrel::workbench {

/// A window that shows a text and lets the user edit it.
class IDocumentView {
 public:
  virtual ~IDocumentView() = default;
  virtual std::string ReadText() const = 0;
  /// Replaces the text; the new one counts as unmodified.
  virtual void ShowText(const std::string& text) = 0;
  virtual bool HasChanges() const = 0;
  virtual void MarkSaved() = 0;
  virtual void LockText(bool locked) = 0;
};

/// A text shown in an editor page. It holds the text itself while no view is attached.
class TTextEditor : public TDocument {
 public:
  using TDocument::TDocument;
  /// Moves the text into `view`, which is borrowed; null moves it back from the current view.
  void AttachView(IDocumentView* view);
  /// Sets the text of a new document and marks it modified.
  void SetNewText(const std::string& text);
  /// The file was deleted: the text counts as never saved, so that closing asks about it.
  void MarkFileMissing() { isNew_ = true; }
  /// Called by the view when the user edits the text, and when the view comes to the front.
  void TextModified();
  virtual void Activated() = 0;

  bool GetModified() override;

 protected:
  std::string Contents() const override;
  void SetContents(const std::string& text) override;
  void MarkSaved() override;
  void ShowReadOnly(bool readOnly) override;
  virtual void ViewChanged(TOTAOperation) {}

 private:
  IDocumentView* view_ = nullptr;
  std::string text_;
  bool isNew_ = false;  // holds text that was never saved
};

class TSourceEditor final : public TTextEditor, public IOTASourceEditor, public IOTAEditView {
 public:
  using TTextEditor::TTextEditor;
  ~TSourceEditor() override { NotifyDestroyed(); }
  std::string GetFileName() override { return FileName(); }
  int GetEditViewCount() override { return 1; }
  IOTAEditView* GetEditView(int index) override { return index == 0 ? this : nullptr; }
  void Activated() override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAEditor, IOTASourceEditor, IOTAEditView>(this, iid);
  }

 private:
  void ViewChanged(TOTAOperation operation) override;
};

class TFormEditor final : public TTextEditor, public IOTAFormEditor {
 public:
  using TTextEditor::TTextEditor;
  ~TFormEditor() override { NotifyDestroyed(); }
  void Activated() override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAEditor, IOTAFormEditor>(this, iid);
  }

 private:
  void AboutToSave() override;
};

/// The source of a project or project group. It has no view; the project tree shows it.
template <class TFile>
class TDefinitionEditor final : public TDocument, public IOTASourceEditor {
 public:
  using TDocument::TDocument;
  ~TDefinitionEditor() override { NotifyDestroyed(); }
  const TFile& Get() const { return file_; }
  /// Access for a change; marks the definition modified.
  TFile& Edit() {
    modified_ = true;
    return file_;
  }
  /// Access for changes that are not worth a question to the user, such as the last active project.
  TFile& EditWithoutDirty() { return file_; }
  bool GetModified() override { return modified_; }
  int GetEditViewCount() override { return 0; }
  IOTAEditView* GetEditView(int) override { return nullptr; }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAEditor, IOTASourceEditor>(this, iid);
  }

 protected:
  std::string Contents() const override { return file_.Text(); }
  void SetContents(const std::string& text) override {
    file_ = TFile::Parse(text);
    modified_ = false;
  }
  void MarkSaved() override { modified_ = false; }
  void ShowReadOnly(bool) override {}

 private:
  TFile file_;
  bool modified_ = false;
};

}  // namespace kestrel::workbench
