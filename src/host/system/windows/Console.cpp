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

/// False for a program with windows, unless its output is redirected to a file or pipe.
bool IsConnected(std::FILE* stream) {
  const int file = _fileno(stream);
  return file >= 0 && GetFileType(reinterpret_cast<HANDLE>(_get_osfhandle(file))) != FILE_TYPE_UNKNOWN;
}

/// Binary, fully buffered: otherwise the CRT writes UTF-8 one byte at a time and the console shows every byte as a
/// character.
void SetBinaryBuffered(std::FILE* stream) {
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
  const bool output = IsConnected(stdout), errors = IsConnected(stderr);
  if (!(output && errors) && AttachConsole(ATTACH_PARENT_PROCESS)) {
    if (!output) std::freopen("CONOUT$", "w", stdout);
    if (!errors) std::freopen("CONOUT$", "w", stderr);
  }
  codePageBefore = GetConsoleOutputCP();
  if (codePageBefore == 0 || !SetConsoleOutputCP(CP_UTF8)) return;
  std::atexit(RestoreCodePage);
  for (auto* stream : {stdout, stderr}) SetBinaryBuffered(stream);
}

}  // namespace kestrel
