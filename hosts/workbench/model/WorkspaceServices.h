// The host's module, editor and action services: the workspace as packages see it.
#pragma once

#include "workbench/model/Workspace.h"

namespace kestrel::workbench {

class TModuleServices final : public IOTAModuleServices {
 public:
  explicit TModuleServices(TWorkspace& workspace) : workspace_(workspace) {}
  int GetModuleCount() override;
  IOTAModule* GetModule(int index) override;
  IOTAModule* FindModule(const std::string& fileName) override;
  IOTAModule* CurrentModule() override;
  IOTAProjectGroup* GetMainProjectGroup() override;
  bool SaveAll() override;
  bool CloseAll() override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAModuleServices>(this, iid);
  }

 private:
  TWorkspace& workspace_;
};

/// One object for the buffer in front, whichever it is at the time of a call.
class TEditorServices final : public IOTAEditorServices, public IOTAEditBuffer {
 public:
  explicit TEditorServices(TWorkspace& workspace) : workspace_(workspace) {}
  IOTAEditBuffer* GetTopBuffer() override { return workspace_.ActiveEditor() ? this : nullptr; }
  std::string GetFileName() override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAEditorServices, IOTAEditBuffer>(this, iid);
  }

 private:
  TWorkspace& workspace_;
};

class TActionServices final : public IOTAActionServices {
 public:
  explicit TActionServices(TWorkspace& workspace) : workspace_(workspace) {}
  bool OpenFile(const std::string& fileName) override;
  bool OpenProject(const std::string& fileName, bool newProjectGroup) override;
  bool SaveFile(const std::string& fileName) override;
  bool ReloadFile(const std::string& fileName) override;
  void* QueryInterface(const TGuid& iid) noexcept override {
    return FindInterface<IOTAActionServices>(this, iid);
  }

 private:
  TWorkspace& workspace_;
};

}  // namespace kestrel::workbench
