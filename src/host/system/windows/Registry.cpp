#include "system/Registry.h"

#include <algorithm>
#include <stdexcept>

#include "system/RegistryKey.h"
#include "system/System.h"
#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

[[noreturn]] void Fail(const std::string& key, LSTATUS error) {
  throw std::runtime_error("Cannot write the registry key " + key + ": " +
                           SystemMessage(static_cast<unsigned long>(error)));
}

std::wstring WideKey(const std::string& key) { return ToWide(CanonicalKey(key)); }

HKEY RootOf(TRegRoot root) { return root == TRegRoot::LocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER; }

}  // namespace

struct TRegistry::TImpl {
  HKEY Root;
  std::string Name;  ///< of the key that is open, as the caller wrote it
  HKEY Key = nullptr;
  bool Writable = false;

  /// Keys come into being at the first write, so that asking leaves no traces.
  void CreateKey() {
    if (!Writable) throw std::runtime_error("No registry key is open for writing.");
    if (Key) return;
    const auto error = RegCreateKeyExW(Root, WideKey(Name).c_str(), 0, nullptr, 0, KEY_READ | KEY_SET_VALUE,
                                       nullptr, &Key, nullptr);
    if (error != ERROR_SUCCESS) Fail(Name, error);
  }
  /// The open key, or nothing: reading from nothing fails.
  bool Open(REGSAM access) {
    return Key || RegOpenKeyExW(Root, WideKey(Name).c_str(), 0, access, &Key) == ERROR_SUCCESS;
  }
};

std::string RegistryFolder() { return ProgramFolder(); }

TRegistry::TRegistry(TRegRoot root) : impl_(new TImpl{.Root = RootOf(root), .Name = {}}) {}
TRegistry::~TRegistry() { CloseKey(); }

bool TRegistry::OpenKeyReadOnly(const std::string& key) {
  CloseKey();
  impl_->Name = key;
  return impl_->Open(KEY_READ);
}

void TRegistry::OpenKey(const std::string& key) {
  CloseKey();
  impl_->Name = key;
  impl_->Writable = true;
  // What there is can be read; that it cannot be written is said when that is tried.
  if (!impl_->Open(KEY_READ | KEY_SET_VALUE)) impl_->Open(KEY_READ);
}

void TRegistry::CloseKey() {
  if (impl_->Key) RegCloseKey(impl_->Key);
  impl_->Key = nullptr;
  impl_->Writable = false;
}

std::string TRegistry::ReadString(const std::string& name) const {
  const auto wide = ToWide(name);
  // A text with variables of the environment comes expanded.
  const auto read = [&](void* data, DWORD* bytes) {
    return RegGetValueW(impl_->Key, nullptr, wide.c_str(), RRF_RT_REG_SZ, nullptr, data, bytes);
  };
  if (!impl_->Key) return {};
  DWORD bytes = 0;
  std::wstring value;
  auto error = read(nullptr, &bytes);
  // Expanding may need more than was said, and somebody may write meanwhile.
  while (error == ERROR_SUCCESS || error == ERROR_MORE_DATA) {
    value.resize(bytes / sizeof(wchar_t) + 1);
    bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
    error = read(value.data(), &bytes);
    if (error == ERROR_SUCCESS) return FromWide(value.c_str());
  }
  return {};
}

std::vector<std::string> TRegistry::GetValueNames() const {
  constexpr DWORD kLongestName = 16383;
  std::vector<std::string> names;
  std::wstring name(kLongestName + 1, L'\0');
  for (DWORD index = 0; impl_->Key; ++index) {
    auto size = kLongestName + 1;
    if (RegEnumValueW(impl_->Key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS)
      break;
    names.push_back(FromWide({name.data(), size}));
  }
  return names;
}

void TRegistry::WriteString(const std::string& name, const std::string& value) {
  impl_->CreateKey();
  const auto wide = ToWide(value);
  const auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
  const auto error = RegSetValueExW(impl_->Key, ToWide(name).c_str(), 0, REG_SZ,
                                    reinterpret_cast<const BYTE*>(wide.c_str()), bytes);
  if (error != ERROR_SUCCESS) Fail(impl_->Name, error);
}

bool TRegistry::DeleteValue(const std::string& name) {
  if (!impl_->Writable) throw std::runtime_error("No registry key is open for writing.");
  if (!impl_->Key) return false;
  const auto error = RegDeleteValueW(impl_->Key, ToWide(name).c_str());
  if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) Fail(impl_->Name, error);
  return error == ERROR_SUCCESS;
}

bool TRegistry::DeleteKey(const std::string& key) {
  RequireBelowRoot(key);
  const auto error = RegDeleteTreeW(impl_->Root, WideKey(key).c_str());
  if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) Fail(key, error);
  return error == ERROR_SUCCESS;
}

}  // namespace kestrel
