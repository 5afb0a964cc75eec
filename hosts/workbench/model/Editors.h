// The editors of modules: texts that a window shows, and the definitions of projects and groups.
#pragma once

#include <optional>
#include <string>

#include "workbench/model/Document.h"
#include "workbench/model/ProjectFile.h"

namespace kestrel::workbench {

/// The window that shows a text and in which the user changes it.
class IDocumentView {
 public:
  virtual ~IDocumentView() = default;
  virtual std::string ReadText() const = 0;
  /// Shows another text; it counts as unmodified.
  virtual void ShowText(const std::string& text) = 0;
  virtual bool HasChanges() const = 0;
  virtual void MarkSaved() = 0;
  virtual void LockText(bool locked) = 0;
};

/// A text shown in an editor page.  Between construction and AttachView it keeps its text itself.
class TTextEditor : public TDocument {
 public:
  using TDocument::TDocument;
  /// The view takes the text over; nullptr gives it back.  Borrowed until then.
  void AttachView(IDocumentView* view);
  /// Replaces the text and marks it modified: the text of a new document.
  void SetNewText(const std::string& text);
  /// Its file is gone: the text counts as never saved, so that closing asks about it.
  void MarkFileMissing() { isNew_ = true; }
  /// The view reports that the user changed the text, and that it came to the front.
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

/// The source of a project or project group: it has no view of its own, the project tree shows it.
template <class TFile>
class TDefinitionEditor final : public TDocument, public IOTASourceEditor {
 public:
  using TDocument::TDocument;
  ~TDefinitionEditor() override { NotifyDestroyed(); }
  const TFile& Get() const { return file_; }
  /// For a change: the definition counts as modified from now on.
  TFile& Edit() {
    modified_ = true;
    return file_;
  }
  /// For what is not worth asking the user about, such as which project was active last.
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
