// Notifiers of source and form editors, and the lists that own them.
//
// Part of the package's interface; no caller here: editor notifiers create form notifiers, and nothing creates editor
// notifiers.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/Modules.h"
#include "host/Notifiers.h"

namespace kestrel::addin {

class TSccExpert;

/// A list of notifiers keyed by file name, ignoring case.  The host shares ownership; the list detaches a notifier before it
/// drops it.
template <class TNotifier>
class TEditorManager {
 public:
  explicit TEditorManager(TSccExpert& expert) : expert_(expert) {}
  TEditorManager(const TEditorManager&) = delete;
  TEditorManager& operator=(const TEditorManager&) = delete;
  ~TEditorManager();

  /// Attaches a notifier to the file's editor, unless the file has one.  Throws EAbort when the file is not open or the
  /// host refuses.
  void Add(const std::string& fileName);
  void Remove(const std::string& fileName);
  int GetCount() const { return static_cast<int>(items_.size()); }
  /// Null for an index outside the list.
  std::shared_ptr<TNotifier> GetItem(int index) const;
  void PutItem(int index, std::shared_ptr<TNotifier> notifier);

 private:
  TSccExpert& expert_;
  std::vector<std::shared_ptr<TNotifier>> items_;
};

/// Base of both kinds: the file, the expert, and the index at the host's editor.
class TAttachedNotifier : public TNotifierObject {
 public:
  TAttachedNotifier(TSccExpert& expert, std::string fileName)
      : expert_(expert), fileName_(std::move(fileName)) {}
  const std::string& FileName() const { return fileName_; }

  /// Attaches `self`, which must point to this object, to the editor.
  virtual void Attach(const std::shared_ptr<IOTANotifier>& self) = 0;
  /// Does nothing when it is not attached or the editor is closed.
  void Detach();

 protected:
  virtual IOTAEditor* FindEditor() = 0;

  TSccExpert& expert_;
  std::string fileName_;
  int index_ = -1;
};

class TSccEditorNotifier final : public TAttachedNotifier, public IOTAEditorNotifier {
 public:
  using TAttachedNotifier::TAttachedNotifier;
  void* QueryInterface(const TGuid& iid) noexcept override;
  void Attach(const std::shared_ptr<IOTANotifier>& self) override;
  void ViewActivated() override;
  void ViewNotification(TOTAOperation operation) override;
  void Destroyed() override;

 private:
  IOTAEditor* FindEditor() override;
};

class TSccFormNotifier final : public TAttachedNotifier, public IOTAFormNotifier {
 public:
  using TAttachedNotifier::TAttachedNotifier;
  void* QueryInterface(const TGuid& iid) noexcept override;
  void Attach(const std::shared_ptr<IOTANotifier>& self) override;
  void FormActivated() override;
  void FormSaving() override {}
  void ComponentRenamed(const std::string&, const std::string&) override {}
  void Destroyed() override;

 private:
  IOTAEditor* FindEditor() override;
};

class TSourceEditorManager final : public TEditorManager<TSccEditorNotifier> {
  using TEditorManager::TEditorManager;
};
class TFormEditorManager final : public TEditorManager<TSccFormNotifier> {
  using TEditorManager::TEditorManager;
};

}  // namespace kestrel::addin
