// A client of the API that shares nothing with the add-in but the API's header: plain_client LIBRARY
#include <dlfcn.h>

#include <array>
#include <cstdio>

#include "scc/sccdefs.h"

using namespace kestrel;

int main(int argc, char** argv) {
  void* library = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
  if (library == nullptr)
    return std::fprintf(stderr, "%s\n", argc == 2 ? dlerror() : "LIBRARY is missing"), 1;
  using Initialize =
      scc::Long (*)(void**, void*, const char*, char*, scc::Long*, char*, scc::Long*, scc::Long*);
  const auto initialize = reinterpret_cast<Initialize>(dlsym(library, "SccInitialize"));
  const auto end = reinterpret_cast<scc::Long (*)(void*)>(dlsym(library, "SccUninitialize"));
  void* context = nullptr;
  std::array<char, 64> texts[2]{};
  scc::Long words[3]{};
  const scc::Long result = initialize(&context, nullptr, "plain", texts[0].data(), &words[0], texts[1].data(),
                                      &words[1], &words[2]);
  std::printf("%s: %d\n", texts[0].data(), result);
  return result == scc::SCC_OK && end(context) == scc::SCC_OK ? 0 : 1;
}
