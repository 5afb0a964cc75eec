# Programs and libraries look for others only relative to themselves: an empty or relative entry in a search path is a folder
# of whoever starts the program.  Wants READELF and FOLDER.
file(GLOB files LIST_DIRECTORIES false ${FOLDER}/*)
set(seen 0)
foreach(file IN LISTS files)
  execute_process(COMMAND ${READELF} -d ${file} OUTPUT_VARIABLE dynamic ERROR_QUIET)
  if(dynamic MATCHES "\\((RUNPATH|RPATH)\\)[^[]*\\[([^]]*)\\]")
    math(EXPR seen "${seen} + 1")
    if(NOT CMAKE_MATCH_2 MATCHES "^(\\$ORIGIN(/[^:]*)?(:|$))+$")
      message(SEND_ERROR "${file} looks for libraries in \"${CMAKE_MATCH_2}\"")
    endif()
  endif()
endforeach()
if(seen EQUAL 0)
  message(FATAL_ERROR "there is nothing to look at in ${FOLDER}")
endif()

# The programs that are installed play no macros.
foreach(program IN ITEMS workbench scc-provider-host)
  file(STRINGS ${FOLDER}/${program} verbs REGEX "expect-no-dialog")
  if(verbs)
    message(SEND_ERROR "${program} contains the macro player")
  endif()
endforeach()
