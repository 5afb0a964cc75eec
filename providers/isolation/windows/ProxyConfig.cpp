#include "isolation/ProxyConfig.h"

#include "system/windows/Api.h"
#include "system/windows/Wide.h"

namespace kestrel::isolation {

std::string OwnConfigFile() {
  HMODULE module = nullptr;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                     reinterpret_cast<const wchar_t*>(&OwnConfigFile), &module);
  std::wstring name(32768, L'\0');
  name.resize(GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())));
  const auto path = FromWide(name);
  return path.substr(0, path.rfind('.')) + kConfigExtension;
}

}  // namespace kestrel::isolation
