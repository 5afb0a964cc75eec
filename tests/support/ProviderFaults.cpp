#include "support/ProviderFaults.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

#if defined(_WIN32)
#include <io.h>
#include <windows.h>
#else
#include <dlfcn.h>
#include <unistd.h>
#endif

namespace kestrel {

namespace {

using TText = scc::TTextOutProc;

// As without sanitizers, which would turn the signal and the exit code into their own.
__attribute__((no_sanitize("address", "undefined"))) void Crash(TText) {
  std::signal(SIGSEGV, SIG_DFL);
  *const_cast<volatile int*>(static_cast<int*>(nullptr)) = 1;
}
void Abort(TText) { std::abort(); }
void Exit(TText) { std::_Exit(7); }
void Loop(TText) {
  for (volatile bool go = true; go;) {
  }
}
/// With a window open that never responds.
void ShowWindowAndLoop(TText textOut) {
#if defined(_WIN32)
  ShowWindow(CreateWindowW(L"STATIC", L"Scripted", WS_OVERLAPPEDWINDOW, 0, 0, 200, 100, nullptr, nullptr,
                           nullptr, nullptr),
             SW_SHOW);
#else
  const auto gtk = [](const char* name) {
    return dlsym(RTLD_DEFAULT, name);
  };  // of the process, if it has windows
  if (const auto make = reinterpret_cast<void* (*)(int)>(gtk("gtk_window_new")))
    reinterpret_cast<void (*)(void*)>(gtk("gtk_widget_show"))(make(0));
#endif
  Loop(textOut);
}
void Throw(TText) { throw std::runtime_error("scripted failure"); }

/// The heap, from a block of our own on.
void Garble(TText) {
  std::vector<char> block(64);
  auto* const end = std::launder(block.data());
  std::memset(end, 0xA5, 1 << 16);
  block.resize(1 << 10);
}

void WriteMuch(TText textOut) {
  if (textOut != nullptr) textOut(std::string(10 << 20, 'x').c_str(), scc::SCC_MSG_INFO);
}

void WriteFromThreads(TText textOut) {
  std::vector<std::thread> threads;
  for (int i = 0; i < 4 && textOut != nullptr; ++i)
    threads.emplace_back([textOut] {
      for (int line = 0; line < 1000; ++line) textOut("threaded", scc::SCC_MSG_INFO);
    });
  for (auto& thread : threads) thread.join();
}

constexpr int kDescriptors = 1024;

void CloseAll(TText) {
  for (int fd = 0; fd < kDescriptors; ++fd) close(fd);
}

/// Whatever is open gets bytes that mean nothing.
void WriteJunk(TText) {
  const std::string junk(4096, '\xEE');
  for (int fd = 3; fd < kDescriptors; ++fd)
    if (write(fd, junk.data(), static_cast<unsigned>(junk.size())) < 0) continue;
}

/// Makes itself look as if it were gone, but a copy keeps what was open.
void LeaveCopy(TText) {
#if !defined(_WIN32)
  if (fork() == 0) {
    for (int i = 0; i < 3; ++i) sleep(1);
    _exit(0);
  }
  std::raise(SIGKILL);
#endif
}

struct TFaultRow {
  const char* Name;
  void (*Commit)(TText);
};
constexpr TFaultRow kFaults[] = {
    {"crash", Crash},
    {"abort", Abort},
    {"exit", Exit},
    {"loop", Loop},
    {"window", ShowWindowAndLoop},
    {"throw", Throw},
    {"garble", Garble},
    {"text", WriteMuch},
    {"threads", WriteFromThreads},
    {"close", CloseAll},
    {"junk", WriteJunk},
    {"copy", LeaveCopy},
};

}  // namespace

void CommitFault(const std::string& entry, TText textOut) {
  static const char* const file = std::getenv("SCRIPTED_FAULTS");
  if (file == nullptr) return;
  std::string wanted, fault;
  if (!(std::ifstream(file) >> wanted >> fault) || wanted != entry) return;
  std::remove(file);
  for (const auto& row : kFaults)
    if (fault == row.Name) row.Commit(textOut);
}

}  // namespace kestrel
