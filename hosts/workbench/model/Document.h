// A file that the workbench has open: its state on disk, saving and reloading, and who wants to hear of it.
#pragma once

#include <string>

#include "host/Modules.h"
#include "workbench/model/Notifications.h"

namespace kestrel::workbench {

/// What has happened to a document's file since it was last read or written.
enum class TDiskChange { None, Attributes, Contents, Deleted };

/// Base of everything that can be edited and saved.  What the contents are is up to the derived class.
class TDocument : public virtual IOTAEditor {
 public:
  TDocument(std::string fileName, const TPackageCaller& caller)
      : fileName_(std::move(fileName)), caller_(caller) {}
  ~TDocument() override;

  const std::string& FileName() const { return fileName_; }
  /// Gives the document another file; it counts as never saved there.
  void Rename(std::string fileName);
  /// On disk as of the last look at it; a document that was never saved is writable.
  bool IsReadOnly() const { return readOnly_; }
  bool IsNew() const { return stamp_.empty(); }

  /// Reads the file, or reads it again: contents and read-only state.  Throws std::runtime_error with a sentence;
  /// the contents then stay as they are.
  void Load();
  /// Writes the contents to the file.  Throws std::runtime_error with a sentence, also when the file is read-only.
  void Save();
  /// Looks at the disk, and takes over a changed read-only state at once.
  TDiskChange CheckDisk();
  /// Accepts the present state of the disk as known.
  void AcceptDisk();

  std::string GetFileName() override { return fileName_; }
  int AddNotifier(std::shared_ptr<IOTANotifier> notifier) override {
    return notifiers_.Add(std::move(notifier));
  }
  void RemoveNotifier(int index) override { notifiers_.Remove(index); }

 protected:
  virtual std::string Contents() const = 0;
  virtual void SetContents(const std::string& text) = 0;
  virtual void MarkSaved() = 0;
  virtual void ShowReadOnly(bool readOnly) = 0;
  virtual void AboutToSave() {}

  /// Calls every notifier that is a T.
  template <class T, class Call>
  void Notify(const char* what, Call call) const {
    notifiers_.ForEach([&](IOTANotifier& notifier) {
      if (T* wanted = Supports<T>(&notifier)) caller_.Run(what, [&] { call(*wanted); });
    });
  }
  /// Tells all notifiers that the document goes, once, and forgets them.
  void NotifyDestroyed();

 private:
  std::string DiskStamp() const;
  void RefreshReadOnly();

  std::string fileName_;
  const TPackageCaller& caller_;
  TRegistrations<IOTANotifier> notifiers_;
  std::string stamp_;  // size and time of the file as last read or written; empty for a document never saved
  bool readOnly_ = false;
};

}  // namespace kestrel::workbench
