#include "support/ScriptedHost.h"

#include <algorithm>

#include "host/Errors.h"

namespace kestrel::addin {

void* TScriptedModule::QueryInterface(const TGuid& iid) noexcept {
  switch (ModuleKind) {
    case Kind::Unit:
      return FindInterface<IOTAModule>(static_cast<IOTAProject*>(this), iid);
    case Kind::Project:
      return FindInterface<IOTAProject, IOTAModule>(static_cast<IOTAProject*>(this), iid);
    case Kind::Group:
      return FindInterface<IOTAProjectGroup, IOTAModule>(static_cast<IOTAProjectGroup*>(this), iid);
  }
  return nullptr;
}

IOTAEditor* TScriptedModule::GetEditor(int index) {
  if (index < 0 || index >= GetEditorCount()) return nullptr;
  auto& editor = Editors[static_cast<std::size_t>(index)];
  return static_cast<IOTASourceEditor*>(&editor);
}

TScriptedHost::TScriptedHost() { CorvaneIDEServices = static_cast<IOTAServices*>(this); }

TScriptedHost::~TScriptedHost() { CorvaneIDEServices = nullptr; }

void* TScriptedHost::QueryInterface(const TGuid& iid) noexcept {
  if (!HasServices && iid == IOTAServices::IID) return nullptr;
  return FindInterface<IOTAServices, IOTAModuleServices, IOTAActionServices, IOTAEditorServices,
                       IOTAMenuServices, IOTAFileStateServices, IOTAOptionsServices, IOTAWizardServices,
                       IOTAApplication>(this, iid);
}

TScriptedModule& TScriptedHost::Add(std::unique_ptr<TScriptedModule> module) {
  by_name_[FoldCase(module->FileName)] = module.get();
  return *modules_.emplace_back(std::move(module));
}

TScriptedModule& TScriptedHost::AddUnit(const std::string& fileName) {
  auto& module = Add(std::make_unique<TScriptedModule>(fileName, TScriptedModule::Kind::Unit));
  module.Editors.emplace_back(fileName, false);
  return module;
}

TScriptedModule& TScriptedHost::AddProject(const std::string& fileName, std::vector<std::string> modules) {
  auto& module = Add(std::make_unique<TScriptedModule>(fileName, TScriptedModule::Kind::Project));
  module.Editors.emplace_back(fileName, false);
  module.Modules = std::move(modules);
  return module;
}

TScriptedModule& TScriptedHost::AddGroup(const std::string& fileName, TScriptedModule* active) {
  auto& module = Add(std::make_unique<TScriptedModule>(fileName, TScriptedModule::Kind::Group));
  module.Active = active;
  return module;
}

void TScriptedHost::CloseModule(const std::string& fileName) {
  by_name_.erase(FoldCase(fileName));
  std::erase_if(modules_, [&](const auto& module) { return SameText(module->FileName, fileName); });
}

void TScriptedHost::Notify(TOTAFileNotification code, const std::string& fileName) {
  bool cancel = false;
  for (const auto& [index, notifier] : std::map(Notifiers)) try {
      notifier->FileNotification(code, fileName, cancel);
    } catch (const EAbort&) {
    }
}

int TScriptedHost::AddNotifier(std::shared_ptr<IOTAIDENotifier> notifier) {
  Notifiers[next_] = std::move(notifier);
  return next_++;
}

int TScriptedHost::AddWizard(std::shared_ptr<IOTAWizard> wizard) {
  Wizards[next_] = std::move(wizard);
  return next_++;
}

IOTAModule* TScriptedHost::GetModule(int index) {
  auto* module = modules_[static_cast<std::size_t>(index)].get();
  return static_cast<IOTAProject*>(module);
}

IOTAModule* TScriptedHost::FindModule(const std::string& fileName) {
  const auto found = by_name_.find(FoldCase(fileName));
  return found == by_name_.end() ? nullptr : static_cast<IOTAProject*>(found->second);
}

IOTAProjectGroup* TScriptedHost::GetMainProjectGroup() {
  const auto isGroup = [](const auto& module) { return module->ModuleKind == TScriptedModule::Kind::Group; };
  const auto found = std::ranges::find_if(modules_, isGroup);
  return found == modules_.end() ? nullptr : found->get();
}

void TScriptedHost::SetFileStates(const std::vector<TFileState>& states) {
  for (const auto& state : states)
    if (state.Mark == TFileMark::Unknown)
      States.erase(state.FileName);
    else
      States[state.FileName] = state;
}

bool TScriptedHost::Did(const char* what, const std::string& fileName) {
  Log.push_back(std::string(what) + " " + fileName);
  return true;
}

bool TScriptedHost::SaveAll() {
  Log.emplace_back("SaveAll");
  return SaveSucceeds;
}

bool TScriptedHost::CloseAll() {
  Log.emplace_back("CloseAll");
  return true;
}

bool TScriptedHost::SaveFile(const std::string& fileName) {
  Did("SaveFile", fileName);
  return SaveSucceeds && fileName != Unsavable;
}

bool TScriptedHost::ReloadFile(const std::string& fileName) {
  if (!ReloadError.empty()) throw std::runtime_error(ReloadError);
  return Did("ReloadFile", fileName);
}

}  // namespace kestrel::addin
