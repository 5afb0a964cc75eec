#include "workbench/model/WorkspaceServices.h"

#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace {

/// Packages get false instead of an exception; the user gets its text.
template <class Operation>
bool RunLoggingErrors(const TWorkspace& workspace, Operation operation) {
  try {
    return operation();
  } catch (const std::exception& e) {
    workspace.Log(e.what());
    return false;
  }
}

}  // namespace

int TModuleServices::GetModuleCount() { return static_cast<int>(workspace_.Modules().InOrder().size()); }

IOTAModule* TModuleServices::GetModule(int index) {
  const bool inside = index >= 0 && index < GetModuleCount();
  return inside ? workspace_.Modules().InOrder()[static_cast<std::size_t>(index)].get() : nullptr;
}

IOTAModule* TModuleServices::FindModule(const std::string& fileName) {
  return workspace_.Modules().Find(fileName);
}
IOTAModule* TModuleServices::CurrentModule() { return workspace_.CurrentModule(); }
IOTAProjectGroup* TModuleServices::GetMainProjectGroup() { return workspace_.Group(); }

bool TModuleServices::SaveAll() {
  return RunLoggingErrors(workspace_, [&] { return workspace_.SaveAll(); });
}

bool TModuleServices::CloseAll() {
  return RunLoggingErrors(workspace_, [&] { return workspace_.CloseAll(); });
}

std::string TEditorServices::GetFileName() {
  const TTextEditor* editor = workspace_.ActiveEditor();
  return editor ? editor->FileName() : std::string();
}

bool TActionServices::OpenFile(const std::string& fileName) {
  return RunLoggingErrors(workspace_, [&] { return workspace_.Open(fileName); });
}

bool TActionServices::OpenProject(const std::string& fileName, bool newProjectGroup) {
  return RunLoggingErrors(workspace_, [&] { return workspace_.OpenProject(fileName, newProjectGroup); });
}

bool TActionServices::SaveFile(const std::string& fileName) {
  return RunLoggingErrors(workspace_, [&] {
    TOpenModule* module = workspace_.Modules().Find(fileName);
    TDocument* document = module ? module->FindDocument(fileName) : nullptr;
    if (!document) return false;
    if (document->GetModified()) workspace_.Save(*document);
    return true;
  });
}

bool TActionServices::ReloadFile(const std::string& fileName) {
  return RunLoggingErrors(workspace_, [&] { return workspace_.Reload(fileName); });
}

}  // namespace kestrel::workbench
