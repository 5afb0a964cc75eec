// The exported names that bring up the provider's windows.
#include "EntryGuard.h"
#include "Windows.h"

using namespace scc;
using svnscc::Guard;
using svnscc::GuardFiles;
using svnscc::GuardOpen;
using svnscc::Names;
using svnscc::Session;

extern "C" {

SCC_EXPORT Long SCC_CALL SccHistory(void* context, WindowHandle window, Long count, const char** names, Long,
                                    void*) {
  return GuardFiles(context, count, names, [&](Session& session, Names files) {
    return svnscc::ShowHistory(session, window, files);
  });
}

SCC_EXPORT Long SCC_CALL SccProperties(void* context, WindowHandle window, const char* name) {
  return GuardOpen(context, [&](Session& session) { return svnscc::ShowProperties(session, window, name); });
}

SCC_EXPORT Long SCC_CALL SccRunScc(void* context, WindowHandle window, Long count, const char** names) {
  return Guard(context, [&](Session& session) {
    const bool named = count > 0 && names != nullptr;
    return svnscc::RunBrowser(session, window,
                              named ? Names(names, static_cast<std::size_t>(count)) : Names());
  });
}

SCC_EXPORT Long SCC_CALL SccGetCommandOptions(void* context, WindowHandle window, SCCCommand command,
                                              void** options) {
  return Guard(context, [&](Session& session) {
    return svnscc::AskCommandOptions(session, window, command, options);
  });
}

// Without a count the client gives the names of its last call back.
SCC_EXPORT Long SCC_CALL SccAddFromScc(void* context, WindowHandle window, Long* count, const char*** names) {
  if (count == nullptr)
    return Guard(context, [](Session& session) -> Long {
      session.Handed().Assign({});
      return SCC_OK;
    });
  return GuardOpen(context, [&](Session& session) -> Long {
    if (names == nullptr) return SCC_E_NONSPECIFICERROR;
    const bool named =
        session.SharesSubprojects && *count == 1 && *names != nullptr && *names != session.Handed().Data();
    std::vector<std::string> chosen;
    const Long result = svnscc::ChooseMissingFiles(session, window, named ? **names : nullptr, chosen);
    if (result != SCC_OK) return result;
    session.Handed().Assign(std::move(chosen));
    *names = session.Handed().Data();
    *count = static_cast<Long>(session.Handed().Count());
    return SCC_OK;
  });
}

}  // extern "C"
