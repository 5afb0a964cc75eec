option(KESTREL_SANITIZE "Build everything with the address and undefined-behaviour sanitizers" OFF)
if(KESTREL_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # g++ 12 reports std::function inside <regex> when both are instrumented (GCC bug 105562).
  add_compile_options(-Wno-maybe-uninitialized)
  add_link_options(-fsanitize=address,undefined)
endif()
