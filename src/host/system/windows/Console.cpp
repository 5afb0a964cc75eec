// What a program prints, in the console that it was started from.
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>
#include <initializer_list>

#include "system/System.h"
#include "system/windows/Api.h"

namespace kestrel {

namespace {

UINT codePageBefore = 0;  ///< of the console; 0 without one

/// False for a program with windows, unless its output goes to a file or a pipe.
bool LeadsSomewhere(std::FILE* stream) {
  const int file = _fileno(stream);
  return file >= 0 && GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file))) != FILE_TYPE_UNKNOWN;
}

/// Whole texts, as they are: by itself the C library hands bytes on one by one, or as characters of their own.
void KeepTextsTogether(std::FILE* stream) {
  constexpr std::size_t kBuffer = 65536;
  if (!_isatty(_fileno(stream))) return;
  _setmode(_fileno(stream), _O_BINARY);
  std::setvbuf(stream, nullptr, _IOFBF, kBuffer);
}

void RestoreCodePage() {
  std::fflush(nullptr);
  SetConsoleOutputCP(codePageBefore);
}

}  // namespace

void PrepareConsole() {
  if (codePageBefore != 0) return;
  const bool output = LeadsSomewhere(stdout), errors = LeadsSomewhere(stderr);
  if (!(output && errors) && AttachConsole(ATTACH_PARENT_PROCESS)) {
    if (!output) std::freopen("CONOUT$", "w", stdout);
    if (!errors) std::freopen("CONOUT$", "w", stderr);
  }
  codePageBefore = GetConsoleOutputCP();
  if (codePageBefore == 0 || !SetConsoleOutputCP(CP_UTF8)) return;
  std::atexit(RestoreCodePage);
  for (auto* stream : {stdout, stderr}) KeepTextsTogether(stream);
}

}  // namespace kestrel
