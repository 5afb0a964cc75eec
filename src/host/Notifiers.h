// Notifications that the host sends to packages.
#pragma once

#include <string>

#include "host/Interface.h"

namespace kestrel {

class IOTAProject;

/// What happened to a file.  The host defines the numbers; a package ignores unknown ones.
enum class TOTAFileNotification : int {
  fnFileOpened = 1,
  fnFileClosing = 2,
  fnActiveProjectChanged = 9,
};

/// Base of all notifiers.  The host calls BeforeSave and AfterSave around each save of the object that the notifier is
/// attached to, Modified when the object's text changes, and Destroyed last.
class IOTANotifier : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B10, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x01}};
  virtual void AfterSave() = 0;
  virtual void BeforeSave() = 0;
  virtual void Destroyed() = 0;
  virtual void Modified() = 0;
};

/// A notifier that ignores all notifications; derived classes override the ones they need.
class TNotifierObject : public virtual IOTANotifier {
 public:
  void AfterSave() override {}
  void BeforeSave() override {}
  void Destroyed() override {}
  void Modified() override {}
  void* QueryInterface(const TGuid& iid) noexcept override { return FindInterface<IOTANotifier>(this, iid); }
};

/// Notifications about the IDE as a whole.
class IOTAIDENotifier : public virtual IOTANotifier {
 public:
  static constexpr TGuid IID{0x7C3E5B11, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x02}};
  /// `fileName` is a full path.  Setting `cancel` stops the operation if the host can still stop it.
  virtual void FileNotification(TOTAFileNotification code, const std::string& fileName, bool& cancel) = 0;
  virtual void BeforeCompile(IOTAProject* project, bool& cancel) = 0;
  virtual void AfterCompile(bool succeeded) = 0;
};

/// Whether a view was added to an editor or removed from it.
enum class TOTAOperation : int { opInsert, opRemove };

/// Notifications of one source editor.
class IOTAEditorNotifier : public virtual IOTANotifier {
 public:
  static constexpr TGuid IID{0x7C3E5B12, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x03}};
  virtual void ViewActivated() = 0;
  virtual void ViewNotification(TOTAOperation operation) = 0;
};

/// Notifications of one form editor.
class IOTAFormNotifier : public virtual IOTANotifier {
 public:
  static constexpr TGuid IID{0x7C3E5B13, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x04}};
  virtual void FormActivated() = 0;
  virtual void FormSaving() = 0;
  virtual void ComponentRenamed(const std::string& oldName, const std::string& newName) = 0;
};

}  // namespace kestrel
