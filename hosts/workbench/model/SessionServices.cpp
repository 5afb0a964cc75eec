#include "workbench/model/SessionServices.h"

#include "workbench/model/ModelStrings.h"

namespace kestrel::workbench {

namespace {

/// Packages get an answer, not an exception; the user gets the sentence.
template <class Operation>
bool Attempt(const TSession& session, Operation operation) {
  try {
    return operation();
  } catch (const std::exception& e) {
    session.Log(e.what());
    return false;
  }
}

}  // namespace

int TModuleServices::GetModuleCount() { return static_cast<int>(session_.Modules().InOrder().size()); }

IOTAModule* TModuleServices::GetModule(int index) {
  const bool inside = index >= 0 && index < GetModuleCount();
  return inside ? session_.Modules().InOrder()[static_cast<std::size_t>(index)].get() : nullptr;
}

IOTAModule* TModuleServices::FindModule(const std::string& fileName) {
  return session_.Modules().Find(fileName);
}
IOTAModule* TModuleServices::CurrentModule() { return session_.CurrentModule(); }
IOTAProjectGroup* TModuleServices::GetMainProjectGroup() { return session_.Group(); }

bool TModuleServices::SaveAll() {
  return Attempt(session_, [&] { return session_.SaveAll(); });
}

bool TModuleServices::CloseAll() {
  return Attempt(session_, [&] { return session_.CloseAll(); });
}

std::string TEditorServices::GetFileName() {
  const TTextEditor* editor = session_.ActiveEditor();
  return editor ? editor->FileName() : std::string();
}

bool TActionServices::OpenFile(const std::string& fileName) {
  return Attempt(session_, [&] { return session_.Open(fileName); });
}

bool TActionServices::OpenProject(const std::string& fileName, bool newProjectGroup) {
  return Attempt(session_, [&] { return session_.OpenProject(fileName, newProjectGroup); });
}

bool TActionServices::SaveFile(const std::string& fileName) {
  return Attempt(session_, [&] {
    TOpenModule* module = session_.Modules().Find(fileName);
    TDocument* document = module ? module->FindDocument(fileName) : nullptr;
    if (!document) return false;
    if (document->GetModified()) session_.Save(*document);
    return true;
  });
}

bool TActionServices::ReloadFile(const std::string& fileName) {
  return Attempt(session_, [&] { return session_.Reload(fileName); });
}

}  // namespace kestrel::workbench
