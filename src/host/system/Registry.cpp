#include "system/Registry.h"

#include <stdexcept>

#include "system/RegistryKey.h"
#include "system/RegistryRoot.h"

namespace kestrel {

struct TRegistry::TImpl {
  enum class TAccess { None, Read, Write };

  std::unique_ptr<IRegistryRoot> Root;
  std::string Key;
  TAccess Access = TAccess::None;

  void RequireWritable() const {
    if (Access != TAccess::Write) throw std::runtime_error("No registry key is open for writing.");
  }
};

TRegistry::TRegistry(TRegRoot root) : impl_(new TImpl{.Root = IRegistryRoot::Open(root), .Key = {}}) {}
TRegistry::~TRegistry() = default;

bool TRegistry::OpenKeyReadOnly(const std::string& key) {
  const bool exists = impl_->Root->HasKey(key);
  impl_->Key = key;
  impl_->Access = exists ? TImpl::TAccess::Read : TImpl::TAccess::None;
  return exists;
}

void TRegistry::OpenKey(const std::string& key) {
  impl_->Key = key;
  impl_->Access = TImpl::TAccess::Write;
}

void TRegistry::CloseKey() { impl_->Access = TImpl::TAccess::None; }

std::string TRegistry::ReadString(const std::string& name) const {
  if (impl_->Access == TImpl::TAccess::None) return {};
  return impl_->Root->Value(impl_->Key, name).value_or("");
}

std::vector<std::string> TRegistry::GetValueNames() const {
  if (impl_->Access == TImpl::TAccess::None) return {};
  return impl_->Root->ValueNames(impl_->Key);
}

void TRegistry::WriteString(const std::string& name, const std::string& value) {
  impl_->RequireWritable();
  impl_->Root->SetValue(impl_->Key, name, value);
}

bool TRegistry::DeleteValue(const std::string& name) {
  impl_->RequireWritable();
  return impl_->Root->DeleteValue(impl_->Key, name);
}

bool TRegistry::DeleteKey(const std::string& key) {
  RequireBelowRoot(key);
  return impl_->Root->DeleteKey(key);
}

}  // namespace kestrel
