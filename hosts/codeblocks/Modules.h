// The host's module, editor and action services over the IDE's editors, projects and workspace.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/Modules.h"
#include "hosts/common/Notifications.h"

namespace kestrel::codeblocks {

/// The text of an open file.  A project and a workspace have one, too: their definition, which the IDE edits in dialogs.
class TSourceEditor final : public IOTASourceEditor, public IOTAEditView {
 public:
  explicit TSourceEditor(std::string fileName) : fileName_(std::move(fileName)) {}
  std::string GetFileName() override { return fileName_; }
  bool GetModified() override;
  int AddNotifier(std::shared_ptr<IOTANotifier> notifier) override {
    return notifiers_.Add(std::move(notifier));
  }
  void RemoveNotifier(int index) override { notifiers_.Remove(index); }
  int GetEditViewCount() override;
  IOTAEditView* GetEditView(int index) override {
    return index == 0 && GetEditViewCount() > 0 ? this : nullptr;
  }
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTASourceEditor, IOTAEditor, IOTAEditView>(this, iid);
  }
  const TRegistrations<IOTANotifier>& Notifiers() const { return notifiers_; }

 private:
  std::string fileName_;
  TRegistrations<IOTANotifier> notifiers_;
};

class TFileModule : public virtual IOTAModule {
 public:
  explicit TFileModule(const std::string& fileName) : editor_(fileName) {}
  std::string GetFileName() override { return editor_.GetFileName(); }
  int GetEditorCount() override { return 1; }
  IOTAEditor* GetEditor(int index) override { return index == 0 ? &editor_ : nullptr; }
  void* QueryInterface(const TGuid& iid) noexcept override { return FindInterface<IOTAModule>(this, iid); }
  TSourceEditor& Editor() { return editor_; }

 private:
  TSourceEditor editor_;
};

class TProjectModule final : public TFileModule, public IOTAProject {
 public:
  using TFileModule::TFileModule;
  /// Also reads the list for ModuleFileName.
  int GetModuleCount() override;
  std::string ModuleFileName(int index) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModule, IOTAProject>(this, iid);
  }

 private:
  std::vector<std::string> files_;
};

class TModules;

/// The workspace.  The IDE's default one has no file name.
class TGroupModule final : public TFileModule, public IOTAProjectGroup {
 public:
  TGroupModule(const std::string& fileName, TModules& modules) : TFileModule(fileName), modules_(modules) {}
  IOTAProject* GetActiveProject() override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModule, IOTAProjectGroup>(this, iid);
  }

 private:
  TModules& modules_;
};

class TModules final : public IOTAModuleServices,
                       public IOTAEditorServices,
                       public IOTAEditBuffer,
                       public IOTAActionServices {
 public:
  /// `changed` is called after projects were opened or closed here.
  TModules(const TPackageCaller& caller, std::function<void()> changed)
      : caller_(caller), changed_(std::move(changed)) {}
  TProjectModule& Project(const std::string& fileName);
  /// Calls the notifiers of an open file's editor.
  void Notify(const std::string& fileName, void (IOTANotifier::*notification)());

  int GetModuleCount() override { return static_cast<int>(Open().size()); }
  IOTAModule* GetModule(int index) override;
  IOTAModule* FindModule(const std::string& fileName) override;
  IOTAModule* CurrentModule() override;
  IOTAProjectGroup* GetMainProjectGroup() override;
  bool SaveAll() override;
  bool CloseAll() override;
  IOTAEditBuffer* GetTopBuffer() override { return GetFileName().empty() ? nullptr : this; }
  std::string GetFileName() override;
  bool OpenFile(const std::string& fileName) override;
  bool OpenProject(const std::string& fileName, bool newProjectGroup) override;
  bool SaveFile(const std::string& fileName) override;
  bool ReloadFile(const std::string& fileName) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModuleServices, IOTAEditorServices, IOTAEditBuffer, IOTAActionServices>(this,
                                                                                                     iid);
  }

 private:
  std::vector<IOTAModule*> Open();
  TFileModule& Unit(const std::string& fileName);
  bool CloseWorkspace();

  const TPackageCaller& caller_;
  std::function<void()> changed_;
  // Created on first use and kept: packages may keep them until control returns to the message loop.
  std::map<std::string, TFileModule> units_;
  std::map<std::string, TProjectModule> projects_;
  std::map<std::string, TGroupModule> groups_;
  std::vector<std::string> closed_;  // the projects of the default workspace that CloseAll closed
};

}  // namespace kestrel::codeblocks
