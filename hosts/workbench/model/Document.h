// An open file: its state on disk, saving, reloading, and its notifiers.
#pragma once

#include <string>

#include "host/Modules.h"
#include "hosts/common/Notifications.h"

namespace kestrel::workbench {

/// What happened to a document's file since it was last read or written.
enum class TDiskChange { None, Attributes, Contents, Deleted };

/// Base of everything that can be edited and saved; derived classes define the contents.
class TDocument : public virtual IOTAEditor {
 public:
  TDocument(std::string fileName, const TPackageCaller& caller)
      : fileName_(std::move(fileName)), caller_(caller) {}
  ~TDocument() override;

  const std::string& FileName() const { return fileName_; }
  /// Assigns another file name; the document counts as never saved there.
  void Rename(std::string fileName);
  /// As of the last check of the disk; a document that was never saved is writable.
  bool IsReadOnly() const { return readOnly_; }
  bool IsNew() const { return stamp_.empty(); }

  /// Reads contents and read-only state from the file. Throws std::runtime_error with a sentence, and then keeps the
  /// contents.
  void Load();
  /// Writes the contents to the file. Throws std::runtime_error with a sentence, also if the file is read-only.
  void Save();
  /// Compares with the disk; applies a changed read-only state at once.
  TDiskChange CheckDisk();
  /// Treats the present state of the disk as known.
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

  /// Calls every notifier that implements T.
  template <class T, class Call>
  void Notify(const char* what, Call call) const {
    notifiers_.ForEach([&](IOTANotifier& notifier) {
      if (T* wanted = Supports<T>(&notifier)) caller_.Run(what, [&] { call(*wanted); });
    });
  }
  /// Notifies all notifiers of the end of the document, then removes them.
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
