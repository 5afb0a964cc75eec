// A host in memory: the real interfaces over plain data that a test sets and reads.
//
//   TScriptedHost host;
//   auto& project = host.AddProject("/p/App.qvxproj", {"/p/unit1.pas"});
//   host.AddUnit("/p/unit1.pas").Modified = true;
//   ...
//   EXPECT_THAT(host.Log, ElementsAre("SaveFile /p/unit1.pas"));
#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "host/FileStates.h"
#include "host/Menus.h"
#include "host/Options.h"
#include "host/Services.h"
#include "system/Text.h"

namespace kestrel::addin {

/// An editor, and the view and buffer of a source editor.
class TScriptedEditor : public IOTASourceEditor, public IOTAFormEditor {
 public:
  TScriptedEditor(std::string fileName, bool isForm) : FileName(std::move(fileName)), IsForm(isForm) {}
  void* QueryInterface(const TGuid& iid) noexcept override {
    return IsForm ? FindInterface<IOTAFormEditor>(this, iid) : FindInterface<IOTASourceEditor>(this, iid);
  }
  std::string GetFileName() override { return FileName; }
  bool GetModified() override { return Modified; }
  int AddNotifier(std::shared_ptr<IOTANotifier> notifier) override {
    Notifiers.push_back(std::move(notifier));
    return static_cast<int>(Notifiers.size()) - 1;
  }
  void RemoveNotifier(int index) override { Notifiers[static_cast<std::size_t>(index)].reset(); }
  int GetEditViewCount() override { return 0; }
  IOTAEditView* GetEditView(int) override { return nullptr; }

  std::string FileName;
  bool IsForm;
  bool Modified = false;
  std::vector<std::shared_ptr<IOTANotifier>> Notifiers;
};

/// A module of any kind.
class TScriptedModule : public IOTAProject, public IOTAProjectGroup {
 public:
  enum class Kind { Unit, Project, Group };
  TScriptedModule(std::string fileName, Kind kind) : FileName(std::move(fileName)), ModuleKind(kind) {}
  void* QueryInterface(const TGuid& iid) noexcept override;
  std::string GetFileName() override { return FileName; }
  int GetEditorCount() override { return static_cast<int>(Editors.size()); }
  IOTAEditor* GetEditor(int index) override;
  int GetModuleCount() override { return static_cast<int>(Modules.size()); }
  std::string ModuleFileName(int index) override { return Modules[static_cast<std::size_t>(index)]; }
  IOTAProject* GetActiveProject() override { return Active; }

  std::string FileName;
  Kind ModuleKind;
  std::deque<TScriptedEditor> Editors;
  std::vector<std::string> Modules;   // of a project
  TScriptedModule* Active = nullptr;  // of a group
};

class TScriptedPropertySet : public IOTAPropertySet {
 public:
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAPropertySet>(this, iid);
  }
  std::string GetValue(const std::string& field) override { return Values[field]; }
  void SetValue(const std::string& field, const std::string& value) override { Values[field] = value; }
  void Load() override {}
  void Save() override { ++Saves; }

  std::map<std::string, std::string> Values;
  int Saves = 0;
};

/// All services in one object; installs itself as CorvaneIDEServices for as long as it lives.
class TScriptedHost final : public IOTAServices,
                            public IOTAModuleServices,
                            public IOTAActionServices,
                            public IOTAEditorServices,
                            public IOTAEditBuffer,
                            public IOTAMenuServices,
                            public IOTAFileStateServices,
                            public IOTAOptionsServices,
                            public IOTAWizardServices,
                            public IOTAApplication {
 public:
  TScriptedHost();
  ~TScriptedHost() override;
  void* QueryInterface(const TGuid& iid) noexcept override;

  TScriptedModule& AddUnit(const std::string& fileName);
  TScriptedModule& AddProject(const std::string& fileName, std::vector<std::string> modules);
  TScriptedModule& AddGroup(const std::string& fileName, TScriptedModule* active);
  void CloseModule(const std::string& fileName);
  /// Sends a notification to every notifier, as the host's dispatch does: a silent abort is discarded.
  void Notify(TOTAFileNotification code, const std::string& fileName);

  // What the add-in did, one line each: "SaveAll", "SaveFile NAME", "ReloadFile NAME", "CloseAll", "OpenFile NAME",
  // "OpenProject NAME", "HelpKeyword WORD".
  std::vector<std::string> Log;
  // What the host answers.
  bool SaveSucceeds = true;
  std::string Unsavable;    // the one file that SaveFile fails for
  std::string ReloadError;  // what ReloadFile throws; empty: nothing
  bool HasServices = true;
  std::string TopBuffer;  // empty: none
  std::string StartupDirectory = "/startup";
  TScriptedPropertySet Options;
  std::vector<TMenuItem*> Menus;
  std::vector<TFileMenu*> FileMenus;
  std::vector<TAction*> Actions;
  std::map<std::string, TFileState> States;  // by file name; of what is Unknown: none
  TCheckOutOffer* CheckOutOffer = nullptr;
  std::vector<std::string> Images;  // SVG documents; the first one has index kFirstImage
  static constexpr int kFirstImage = 100;
  std::map<int, std::shared_ptr<IOTAIDENotifier>> Notifiers;
  std::map<int, std::shared_ptr<IOTAWizard>> Wizards;

  int AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) override;
  void RemoveNotifier(int index) override { Notifiers.erase(index); }
  TWindowHandle GetParentHandle() override { return 0; }
  std::string GetStartupDirectory() override { return StartupDirectory; }
  int GetModuleCount() override { return static_cast<int>(modules_.size()); }
  IOTAModule* GetModule(int index) override;
  IOTAModule* FindModule(const std::string& fileName) override;
  IOTAModule* CurrentModule() override { return FindModule(TopBuffer); }
  IOTAProjectGroup* GetMainProjectGroup() override;
  bool SaveAll() override;
  bool CloseAll() override;
  bool OpenFile(const std::string& fileName) override { return Did("OpenFile", fileName); }
  bool OpenProject(const std::string& fileName, bool) override { return Did("OpenProject", fileName); }
  bool SaveFile(const std::string& fileName) override;
  bool ReloadFile(const std::string& fileName) override;
  IOTAEditBuffer* GetTopBuffer() override { return TopBuffer.empty() ? nullptr : this; }
  std::string GetFileName() override { return TopBuffer; }
  void InsertMenu(TMenuItem& top) override { Menus.push_back(&top); }
  void RemoveMenu(TMenuItem& top) override { std::erase(Menus, &top); }
  void InsertFileMenu(TFileMenu& menu) override { FileMenus.push_back(&menu); }
  void RemoveFileMenu(TFileMenu& menu) override { std::erase(FileMenus, &menu); }
  void AttachAction(TAction& action) override { Actions.push_back(&action); }
  void DetachAction(TAction& action) override { std::erase(Actions, &action); }
  int AddImage(const std::string& svg) override {
    Images.push_back(svg);
    return kFirstImage + static_cast<int>(Images.size()) - 1;
  }
  void SetFileStates(const std::vector<TFileState>& states) override;
  void ClearFileStates() override { States.clear(); }
  void InsertCheckOutOffer(TCheckOutOffer& offer) override { CheckOutOffer = &offer; }
  void RemoveCheckOutOffer(TCheckOutOffer&) override { CheckOutOffer = nullptr; }
  IOTAPropertySet& PropertySet(const std::string&) override { return Options; }
  int AddOptions(std::shared_ptr<IOTAAddInOptions>) override { return 0; }
  void RemoveOptions(int) override {}
  int AddWizard(std::shared_ptr<IOTAWizard> wizard) override;
  void RemoveWizard(int index) override { Wizards.erase(index); }
  TEvent<>& MainFormCreated() override { return main_form_created_; }
  bool HelpKeyword(const std::string& keyword) override { return Did("HelpKeyword", keyword); }

 private:
  bool Did(const char* what, const std::string& fileName);
  TScriptedModule& Add(std::unique_ptr<TScriptedModule> module);

  std::vector<std::unique_ptr<TScriptedModule>> modules_;
  std::unordered_map<std::string, TScriptedModule*> by_name_;
  TEvent<> main_form_created_;
  int next_ = 0;
};

}  // namespace kestrel::addin
