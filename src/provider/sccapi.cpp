#include "provider/sccapi.h"

#include "provider/ProviderBorder.h"
#include "provider/ProviderStrings.h"
#include "provider/sccapiintf.h"

namespace kestrel::scc {

using namespace addin;

TModuleHandle hSosScc = nullptr;

#define SCC_ENTRY(variable, name, result, arguments) result(SCC_CALL* variable) arguments = nullptr;
#include "scc/entry_points.def"
#undef SCC_ENTRY

TTextOutProc callBackTextOutProc = nullptr;
TPopListFunc callBackPopListFunc = nullptr;

namespace {

#define SCC_ENTRY(variable, name, result, arguments) +1
constexpr int kEntryCount = 0
#include "scc/entry_points.def"
    ;
#undef SCC_ENTRY
static_assert(kEntryCount == 23);

template <class Function>
void Bind(Function*& variable, const char* name) {
  variable = reinterpret_cast<Function*>(FindSymbol(hSosScc, name));
}

}  // namespace

bool LoadSCCDLL(const std::string& path) {
  const TScopedFpEnv floatingPoint;
  std::string reason;
  const auto search = SearchesPath(path) ? TDependencySearch::OwnFolderPath : TDependencySearch::OwnFolder;
  if (!hSosScc) hSosScc = LoadModule(path, &reason, search);
  if (!hSosScc) {
    WriteProviderLine(TSeverity::Error, Format(sLibraryNotLoaded, {path, reason}));
    return false;
  }
#define SCC_ENTRY(variable, name, result, arguments) Bind(variable, name);
#include "scc/entry_points.def"
#undef SCC_ENTRY
  return true;
}

void UnloadSCCDLL() {
  const TScopedFpEnv floatingPoint;
  UnloadModule(hSosScc);
  hSosScc = nullptr;
}

std::string NameOf(TEntry entry) {
#define SCC_ENTRY(variable, name, result, arguments) \
  if (reinterpret_cast<TEntry>(variable) == entry) return name;
#include "scc/entry_points.def"
#undef SCC_ENTRY
  return {};
}

Dword SCC_VER_NUM() { return 0x00010001; }
Dword SCC_GET_MAJOR_VER(Dword version) { return version >> 16; }
Dword SCC_GET_MINOR_VER(Dword version) { return version & 0xFFFF; }

}  // namespace kestrel::scc
