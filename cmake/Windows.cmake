# What only the build for Windows needs: the manifest of the programs, and the libraries beside them.
if(NOT WIN32)
  return()
endif()
set(CMAKE_SHARED_LIBRARY_PREFIX "")
set(CMAKE_SHARED_MODULE_PREFIX "")

# One resource for all programs, linked by each.
set(windows_sources ${CMAKE_SOURCE_DIR}/packaging/windows)
set(program_resource ${CMAKE_BINARY_DIR}/program.res.o)
execute_process(COMMAND ${CMAKE_RC_COMPILER} -I ${windows_sources} ${windows_sources}/program.rc ${program_resource}
  COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${windows_sources}/program.rc ${windows_sources}/program.manifest)
add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${program_resource}>)

include_directories(SYSTEM ${KESTREL_WINDOWS_LIBRARIES}/include)
add_compile_options(-ffile-prefix-map=${KESTREL_WINDOWS_LIBRARIES}/=)  # no folder of this machine in what is handed on

# The C++ runtime is shared, so that exceptions cross from one module into another.
set(runtime_libraries)
foreach(name IN ITEMS libstdc++-6 libgcc_s_seh-1 libgcc_s_dw2-1 libwinpthread-1)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}.dll
    OUTPUT_VARIABLE found OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(IS_ABSOLUTE ${found})
    list(APPEND runtime_libraries ${found})
  endif()
endforeach()
file(GLOB toolkit_libraries ${KESTREL_WINDOWS_LIBRARIES}/lib/*/wx*.dll)
list(FILTER toolkit_libraries EXCLUDE REGEX "_(adv|net)_[^/]*$")  # nobody needs them
list(APPEND runtime_libraries ${toolkit_libraries})
file(COPY ${runtime_libraries} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
install(FILES ${runtime_libraries} DESTINATION .)

# Tests run under Wine, where the machine's files are on drive Z.
set(CMAKE_CROSSCOMPILING_EMULATOR wine)
set(KESTREL_TEST_DRIVE "Z:")
