#include <stdexcept>

#include "system/RegistryKey.h"
#include "system/RegistryRoot.h"
#include "system/System.h"
#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel {

namespace {

[[noreturn]] void Fail(const std::string& key, LSTATUS error) {
  throw std::runtime_error("Cannot write the registry key " + key + ": " +
                           SystemMessage(static_cast<unsigned long>(error)));
}

/// Returns whether the change was made; false if there was nothing to delete.
bool Check(const std::string& key, LSTATUS error) {
  if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND) Fail(key, error);
  return error == ERROR_SUCCESS;
}

std::wstring WideKey(const std::string& key) { return ToWide(CanonicalKey(key)); }

struct TCloseKey {
  using pointer = HKEY;
  void operator()(HKEY key) const { RegCloseKey(key); }
};
using TOpenKey = std::unique_ptr<HKEY, TCloseKey>;

class TSystemRegistry final : public IRegistryRoot {
 public:
  /// `view` is added to the access rights.
  TSystemRegistry(HKEY root, REGSAM view) : root_(root), view_(view) {}

  bool HasKey(const std::string& key) const override { return static_cast<bool>(OpenForReading(key)); }

  std::optional<std::string> Value(const std::string& key, const std::string& name) const override {
    const auto opened = OpenForReading(key);
    const auto wide = ToWide(name);
    // Also reads REG_EXPAND_SZ, with environment variables expanded.
    const auto read = [&](void* data, DWORD* bytes) {
      return RegGetValueW(opened.get(), nullptr, wide.c_str(), RRF_RT_REG_SZ, nullptr, data, bytes);
    };
    if (!opened) return std::nullopt;
    DWORD bytes = 0;
    std::wstring value;
    auto error = read(nullptr, &bytes);
    // The expanded value may be longer than reported, and other programs may change it.
    while (error == ERROR_SUCCESS || error == ERROR_MORE_DATA) {
      value.resize(bytes / sizeof(wchar_t) + 1);
      bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
      error = read(value.data(), &bytes);
      if (error == ERROR_SUCCESS) return FromWide(value.c_str());
    }
    return std::nullopt;
  }

  std::vector<std::string> ValueNames(const std::string& key) const override {
    constexpr DWORD kLongestName = 16383;
    const auto opened = OpenForReading(key);
    std::vector<std::string> names;
    std::wstring name(kLongestName + 1, L'\0');
    for (DWORD index = 0; opened; ++index) {
      auto size = kLongestName + 1;
      if (RegEnumValueW(opened.get(), index, name.data(), &size, nullptr, nullptr, nullptr, nullptr) !=
          ERROR_SUCCESS)
        break;
      names.push_back(FromWide({name.data(), size}));
    }
    return names;
  }

  void SetValue(const std::string& key, const std::string& name, const std::string& value) const override {
    const auto wide = ToWide(value);
    const auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
    HKEY created = nullptr;
    auto error = RegCreateKeyExW(root_, WideKey(key).c_str(), 0, nullptr, 0, KEY_SET_VALUE | view_, nullptr,
                                 &created, nullptr);
    const TOpenKey opened(created);
    if (error == ERROR_SUCCESS)
      error = RegSetValueExW(opened.get(), ToWide(name).c_str(), 0, REG_SZ,
                             reinterpret_cast<const BYTE*>(wide.c_str()), bytes);
    if (error != ERROR_SUCCESS) Fail(key, error);
  }

  bool DeleteValue(const std::string& key, const std::string& name) const override {
    HKEY found = nullptr;
    const auto error = RegOpenKeyExW(root_, WideKey(key).c_str(), 0, KEY_SET_VALUE | view_, &found);
    const TOpenKey opened(found);
    return Check(key, error) && Check(key, RegDeleteValueW(opened.get(), ToWide(name).c_str()));
  }

  bool DeleteKey(const std::string& key) const override {
    return Check(key, RegDeleteTreeW(root_, WideKey(key).c_str()));
  }

 private:
  TOpenKey OpenForReading(const std::string& key) const {
    HKEY opened = nullptr;
    RegOpenKeyExW(root_, WideKey(key).c_str(), 0, KEY_READ | view_, &opened);
    return TOpenKey(opened);
  }

  HKEY root_;
  REGSAM view_;
};

}  // namespace

std::string RegistryFolder() { return ProgramFolder(); }

std::unique_ptr<IRegistryRoot> IRegistryRoot::Open(TRegRoot root) {
  constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
  return std::make_unique<TSystemRegistry>(
      root == TRegRoot::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE,
      root == TRegRoot::LocalMachineOtherBits ? kOtherView : 0);
}

}  // namespace kestrel
