# ccache is a convenience: used when it is there, never required.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  # The sloppiness is what ccache's manual asks for with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
  else()
    add_compile_options(-fpch-preprocess)
  endif()
endif()
