# The help that programs show: docs/help/*.md as HTML, with project and contents in the format of the toolkit's help window,
# and topics.ini, which has the page of each keyword and number.  A page states its own in a comment,
# "<!-- keyword: NAME [NUMBER] -->".  The contents list the pages in the order of the links in index.md.
#
# Included, it defines the target `help_pages`, which writes them to help/ beside the programs.
# Run with -P and -DSOURCES= -DOUTPUT= -DCMARK=, it writes them.
cmake_minimum_required(VERSION 3.25)
if(NOT CMAKE_SCRIPT_MODE_FILE)
  find_program(CMARK cmark-gfm REQUIRED)
  file(GLOB help_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/help/*.md)
  set(KESTREL_HELP_FOLDER ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/help)
  add_custom_command(OUTPUT ${KESTREL_HELP_FOLDER}/kestrelide.hhp
    COMMAND ${CMAKE_COMMAND} -DSOURCES=${CMAKE_SOURCE_DIR}/docs/help -DOUTPUT=${KESTREL_HELP_FOLDER} -DCMARK=${CMARK}
      -P ${CMAKE_CURRENT_LIST_FILE}
    DEPENDS ${help_sources} ${CMAKE_CURRENT_LIST_FILE}
    COMMENT "Writing the help pages" VERBATIM)
  add_custom_target(help_pages DEPENDS ${KESTREL_HELP_FOLDER}/kestrelide.hhp)
  return()
endif()

file(READ ${SOURCES}/index.md index)
string(REGEX MATCHALL "\\(([a-z-]+)\\.md\\)" links "${index}")
set(contents)
set(topics "[Topics]\n")
foreach(link IN LISTS links ITEMS "(index.md)")
  string(REGEX REPLACE "\\((.*)\\.md\\)" "\\1" name ${link})
  file(READ ${SOURCES}/${name}.md source)
  string(REGEX MATCHALL "\\([a-z-]+\\.md\\)" targets "${source}")
  foreach(target IN LISTS targets)
    if(NOT target IN_LIST links AND NOT target STREQUAL "(index.md)")
      message(FATAL_ERROR "docs/help/${name}.md links to ${target}, which index.md does not list")
    endif()
  endforeach()
  string(REGEX MATCH "# ([^\n]+)" _ "${source}")
  set(title "${CMAKE_MATCH_1}")
  if(source MATCHES "<!-- keyword: ([A-Za-z_0-9 ]+) -->")
    string(REPLACE " " ";" keys "${CMAKE_MATCH_1}")
    list(TRANSFORM keys APPEND "=${name}.html\n")
    string(APPEND topics ${keys})
  endif()
  string(APPEND contents "<li><object type=\"text/sitemap\"><param name=\"Name\" value=\"${title}\">"
    "<param name=\"Local\" value=\"${name}.html\"></object>\n")
  execute_process(COMMAND ${CMARK} -e table ${SOURCES}/${name}.md OUTPUT_VARIABLE body COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "href=\"([a-z-]+)\\.md\"" "href=\"\\1.html\"" body "${body}")
  file(WRITE ${OUTPUT}/${name}.html
    "<html><head><meta charset=\"utf-8\"><title>${title}</title></head><body>\n${body}</body></html>\n")
endforeach()
file(WRITE ${OUTPUT}/kestrelide.hhc "<ul>\n${contents}</ul>\n")
file(WRITE ${OUTPUT}/topics.ini "${topics}")
file(WRITE ${OUTPUT}/kestrelide.hhp "Title=KestrelIDE help
Default topic=index.html
Contents file=kestrelide.hhc
Charset=utf-8
")
