#include "expert/EditorNotifiers.h"

#include <algorithm>

#include "expert/EditorNotifierStrings.h"
#include "expert/SccExpert.h"
#include "expert/SccSystem.h"
#include "host/Errors.h"
#include "system/Paths.h"
#include "system/Text.h"

namespace kestrel::addin {

namespace {

IOTAModule* FindModule(const std::string& fileName) {
  auto* modules = IdeService<IOTAModuleServices>();
  return modules ? modules->FindModule(fileName) : nullptr;
}

}  // namespace

template <class TNotifier>
TEditorManager<TNotifier>::~TEditorManager() {
  for (const auto& item : items_) item->Detach();
}

template <class TNotifier>
void TEditorManager<TNotifier>::Add(const std::string& fileName) {
  if (std::ranges::any_of(items_, [&](auto& item) { return SameText(item->FileName(), fileName); })) return;
  auto notifier = std::make_shared<TNotifier>(expert_, fileName);
  notifier->Attach(notifier);
  items_.push_back(std::move(notifier));
}

template <class TNotifier>
void TEditorManager<TNotifier>::Remove(const std::string& fileName) {
  const auto found =
      std::ranges::find_if(items_, [&](auto& item) { return SameText(item->FileName(), fileName); });
  if (found == items_.end()) return;
  const auto removed = std::move(*found);  // keeps it alive until it is detached
  items_.erase(found);
  removed->Detach();
}

template <class TNotifier>
std::shared_ptr<TNotifier> TEditorManager<TNotifier>::GetItem(int index) const {
  return index >= 0 && index < GetCount() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

template <class TNotifier>
void TEditorManager<TNotifier>::PutItem(int index, std::shared_ptr<TNotifier> notifier) {
  if (index >= 0 && index < GetCount() && notifier)
    items_[static_cast<std::size_t>(index)] = std::move(notifier);
}

template class TEditorManager<TSccEditorNotifier>;
template class TEditorManager<TSccFormNotifier>;

void TAttachedNotifier::Detach() {
  const int index = std::exchange(index_, -1);
  if (index < 0) return;
  if (auto* editor = FindEditor()) editor->RemoveNotifier(index);
}

void* TSccEditorNotifier::QueryInterface(const TGuid& iid) noexcept {
  return FindInterface<IOTAEditorNotifier, IOTANotifier>(this, iid);
}

IOTAEditor* TSccEditorNotifier::FindEditor() {
  auto* module = FindModule(fileName_);
  return module ? Supports<IOTASourceEditor>(module->GetEditor(0)) : nullptr;
}

void TSccEditorNotifier::Attach(const std::shared_ptr<IOTANotifier>& self) {
  auto* editor = FindEditor();
  if (editor) index_ = editor->AddNotifier(self);
  if (index_ < 0) throw EAbort(sAddNotifierFailed);
}

void TSccEditorNotifier::ViewActivated() { expert_.ViewChange(rv_GetCurrentFile()); }

void TSccEditorNotifier::ViewNotification(TOTAOperation operation) {
  if (operation != TOTAOperation::opInsert) return;
  auto* form = GetFormEditor(FindModule(rv_GetCurrentFile()), kFormExtension);
  if (form) expert_.FormEditors()->Add(form->GetFileName());
}

void TSccEditorNotifier::Destroyed() { expert_.SourceEditors()->Remove(fileName_); }

void* TSccFormNotifier::QueryInterface(const TGuid& iid) noexcept {
  return FindInterface<IOTAFormNotifier, IOTANotifier>(this, iid);
}

IOTAEditor* TSccFormNotifier::FindEditor() {
  return GetFormEditor(FindModule(FileTypes().GetUnit(fileName_)), ExtractFileExt(fileName_));
}

void TSccFormNotifier::Attach(const std::shared_ptr<IOTANotifier>& self) {
  if (!FindModule(FileTypes().GetUnit(fileName_))) throw EAbort(sFormModuleNil);
  auto* editor = FindEditor();
  if (!editor) throw EAbort(sFormEditorNil);
  index_ = editor->AddNotifier(self);
  if (index_ < 0) throw EAbort(sFormAddNotifierFailed);
}

void TSccFormNotifier::FormActivated() {
  auto* form = GetActiveFormEditor();
  if (!form) {
    WriteMessage(mwtError, sFormActivatedNil);
    return;
  }
  expert_.ViewChange(FileTypes().GetUnit(form->GetFileName()));
}

void TSccFormNotifier::Destroyed() { expert_.FormEditors()->Remove(fileName_); }

}  // namespace kestrel::addin
