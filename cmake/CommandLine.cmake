# `cli11`: the parser of command lines, headers only.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include REQUIRED NO_CMAKE_FIND_ROOT_PATH)
if(WIN32)
  # The build machine's, without the other headers in their folder.
  file(COPY ${CLI11_HEADERS}/CLI DESTINATION ${CMAKE_BINARY_DIR}/headers)
  set(CLI11_HEADERS ${CMAKE_BINARY_DIR}/headers)
endif()
add_library(cli11 INTERFACE)
target_include_directories(cli11 SYSTEM INTERFACE ${CLI11_HEADERS})
