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

}  // extern "C"
