# Every target of ours links `warnings`; other people's headers come in as SYSTEM and stay out of it.
add_library(warnings INTERFACE)
target_compile_options(warnings INTERFACE
  -Wall -Wextra -Wpedantic -Werror -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-align
  -Woverloaded-virtual -Wconversion -Wsign-conversion -Wformat=2
  # g++ 12 reports these inside libstdc++ for correct code at -O2 (GCC bugs 105329, 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict$<SEMICOLON>-Wno-error=stringop-overflow>
  # clang reports std::get_temporary_buffer inside libstdc++'s own std::stable_sort.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-deprecated-declarations>)
