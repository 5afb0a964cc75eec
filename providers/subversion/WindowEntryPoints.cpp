// The exported functions that show windows.
#include "subversion/EntryPointWrapper.h"
#include "subversion/windows/ProviderWindows.h"

namespace kestrel::svnscc {

using namespace scc;

extern "C" {

SCC_EXPORT Long SCC_CALL SccHistory(void* handle, WindowHandle window, Long count, const char** names, Long,
                                    void*) {
  return RunWithFiles(handle, count, names, [&](ProviderContext& context, Names files) {
    return ShowHistory(context, window, files);
  });
}

SCC_EXPORT Long SCC_CALL SccProperties(void* handle, WindowHandle window, const char* name) {
  return RunWithProject(handle,
                        [&](ProviderContext& context) { return ShowProperties(context, window, name); });
}

SCC_EXPORT Long SCC_CALL SccRunScc(void* handle, WindowHandle window, Long count, const char** names) {
  return RunEntryPoint(handle, [&](ProviderContext& context) {
    const bool named = count > 0 && names != nullptr;
    return RunBrowser(context, window, named ? Names(names, static_cast<std::size_t>(count)) : Names());
  });
}

SCC_EXPORT Long SCC_CALL SccGetCommandOptions(void* handle, WindowHandle window, SCCCommand command,
                                              void** options) {
  return RunEntryPoint(
      handle, [&](ProviderContext& context) { return AskCommandOptions(context, window, command, options); });
}

// A null count releases the names of the last call.
SCC_EXPORT Long SCC_CALL SccAddFromScc(void* handle, WindowHandle window, Long* count, const char*** names) {
  if (count == nullptr)
    return RunEntryPoint(handle, [](ProviderContext& context) -> Long {
      context.ReturnedNames().Assign({});
      return SCC_OK;
    });
  return RunWithProject(handle, [&](ProviderContext& context) -> Long {
    if (names == nullptr) return SCC_E_NONSPECIFICERROR;
    const bool named = context.SharesSubprojects && *count == 1 && *names != nullptr &&
                       *names != context.ReturnedNames().Data();
    std::vector<std::string> chosen;
    const Long result = ChooseMissingFiles(context, window, named ? **names : nullptr, chosen);
    if (result != SCC_OK) return result;
    context.ReturnedNames().Assign(std::move(chosen));
    *names = context.ReturnedNames().Data();
    *count = static_cast<Long>(context.ReturnedNames().Count());
    return SCC_OK;
  });
}

}  // extern "C"

}  // namespace kestrel::svnscc
