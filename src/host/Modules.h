// Modules, projects, editors and the services that find, open, save and reload them.
//
// Objects returned by pointer belong to the host.  They are valid until control returns to the host's message loop or a
// call closes the module.  All file names are full paths in UTF-8.
#pragma once

#include <memory>
#include <string>

#include "host/Interface.h"
#include "host/Notifiers.h"

namespace kestrel {

/// One editor of a module: its source text or its form.
class IOTAEditor : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B20, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x10}};
  virtual std::string GetFileName() = 0;
  virtual bool GetModified() = 0;
  /// Attaches a notifier and returns its index for RemoveNotifier(), or a negative number on failure.
  virtual int AddNotifier(std::shared_ptr<IOTANotifier> notifier) = 0;
  virtual void RemoveNotifier(int index) = 0;
};

/// One visible view of a source editor.
class IOTAEditView : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B21, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x11}};
  virtual std::string GetFileName() = 0;
};

class IOTASourceEditor : public virtual IOTAEditor {
 public:
  static constexpr TGuid IID{0x7C3E5B22, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x12}};
  virtual int GetEditViewCount() = 0;
  virtual IOTAEditView* GetEditView(int index) = 0;
};

class IOTAFormEditor : public virtual IOTAEditor {
 public:
  static constexpr TGuid IID{0x7C3E5B23, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x13}};
};

/// An open file: a unit, a form's unit, a project or a project group.
class IOTAModule : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B24, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x14}};
  virtual std::string GetFileName() = 0;
  virtual int GetEditorCount() = 0;
  /// The editor at 0 <= index < GetEditorCount(), otherwise null.  The source editor, if there is one, has index 0.
  virtual IOTAEditor* GetEditor(int index) = 0;
};

/// A project: a module that lists its files, open or not.
class IOTAProject : public virtual IOTAModule {
 public:
  static constexpr TGuid IID{0x7C3E5B25, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x15}};
  virtual int GetModuleCount() = 0;
  /// The file name of the project's module at 0 <= index < GetModuleCount(), in project order.
  virtual std::string ModuleFileName(int index) = 0;
};

class IOTAProjectGroup : public virtual IOTAModule {
 public:
  static constexpr TGuid IID{0x7C3E5B26, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x16}};
  virtual IOTAProject* GetActiveProject() = 0;
};

class IOTAModuleServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B30, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x20}};
  virtual int GetModuleCount() = 0;
  virtual IOTAModule* GetModule(int index) = 0;
  /// The open module of that file (compared ignoring case), or null.
  virtual IOTAModule* FindModule(const std::string& fileName) = 0;
  /// The module whose editor has the focus, or null.
  virtual IOTAModule* CurrentModule() = 0;
  /// The open project group, or null.  It need not exist on disk.
  virtual IOTAProjectGroup* GetMainProjectGroup() = 0;
  /// Saves all modified modules.  Returns false if one could not be saved or the user cancelled.
  virtual bool SaveAll() = 0;
  /// Closes all modules, asking about unsaved ones.  Returns false if the user cancelled.
  virtual bool CloseAll() = 0;
};

/// A text buffer of an editor.
class IOTAEditBuffer : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B31, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x21}};
  virtual std::string GetFileName() = 0;
};

class IOTAEditorServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B32, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x22}};
  virtual IOTAEditBuffer* GetTopBuffer() = 0;
};

/// All operations return whether they succeeded.
class IOTAActionServices : public virtual IInterface {
 public:
  static constexpr TGuid IID{0x7C3E5B33, 0x24A1, 0x4E0D, {0x9A, 0x11, 0x52, 0x6B, 0x0C, 0x7E, 0x31, 0x23}};
  virtual bool OpenFile(const std::string& fileName) = 0;
  /// Opens a project; with `newProjectGroup` as the only one of a new, unsaved group.
  virtual bool OpenProject(const std::string& fileName, bool newProjectGroup) = 0;
  virtual bool SaveFile(const std::string& fileName) = 0;
  /// Reloads contents and read-only state from disk.
  virtual bool ReloadFile(const std::string& fileName) = 0;
};

}  // namespace kestrel
