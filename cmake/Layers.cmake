# Include roots: one folder per layer that holds nothing but a link to the layer's own folder, so that a target finds the
# headers of the layers that it links, and no others.

# include_root(target name): `target` and all that link it find the headers of the current folder as "name/Header.h".
function(include_root target name)
  set(root ${CMAKE_BINARY_DIR}/roots/${name})
  cmake_path(GET name PARENT_PATH above)
  file(MAKE_DIRECTORY ${root}/${above})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${root}/${name} SYMBOLIC)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_include_directories(${target} INTERFACE ${root})
  else()
    target_include_directories(${target} PUBLIC ${root})
  endif()
endfunction()

# check_headers(name target [TOOLKIT] [FOLDERS folder...]): compiles each header of the current folder (and of those below it
# that are named) alone, with what `target` sees.  TOOLKIT: with the precompiled header of the toolkit, which saves minutes.
function(check_headers name target)
  cmake_parse_arguments(arg "TOOLKIT" "" "FOLDERS" ${ARGN})
  set(sources)
  foreach(folder IN LISTS arg_FOLDERS ITEMS .)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} ${folder}/*.h)
    foreach(header IN LISTS headers)
      string(REPLACE / _ source ${header})
      set(source ${CMAKE_CURRENT_BINARY_DIR}/headers/${source}.cpp)
      file(CONFIGURE OUTPUT ${source} CONTENT "#include \"${name}/${header}\"\n")
      list(APPEND sources ${source})
    endforeach()
  endforeach()
  string(REPLACE / _ part ${name})
  add_library(check_${part}_headers OBJECT ${sources})
  target_link_libraries(check_${part}_headers PRIVATE warnings ${target})
  if(arg_TOOLKIT)
    use_wx(check_${part}_headers)
  endif()
endfunction()
