# `wx`: the toolkit, for the folders that show windows.  `wx_pch` compiles its headers once for all of them.
if(WIN32)
  set(wx_search CONFIG)  # there is no wx-config there
endif()
set(wx_parts stc aui core base)
if(NOT WIN32)  # tools/windows-libraries leaves HTML out to build faster
  list(PREPEND wx_parts html)
endif()
find_package(wxWidgets 3.2 REQUIRED ${wx_search} COMPONENTS ${wx_parts})
add_library(wx INTERFACE)
target_include_directories(wx SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
target_compile_definitions(wx INTERFACE ${wxWidgets_DEFINITIONS})
target_compile_options(wx INTERFACE ${wxWidgets_CXX_FLAGS})
target_link_libraries(wx INTERFACE ${wxWidgets_LIBRARIES})

file(CONFIGURE OUTPUT wx_pch.cpp CONTENT "")  # written once: a newer one would be compiled again at each configuration
add_library(wx_pch STATIC ${CMAKE_BINARY_DIR}/wx_pch.cpp)
target_link_libraries(wx_pch PUBLIC warnings wx)
target_precompile_headers(wx_pch PRIVATE <wx/wx.h> <functional> <map> <memory> <string> <vector>)

# use_wx(target): links the toolkit and reuses its precompiled header.
function(use_wx target)
  target_link_libraries(${target} PRIVATE warnings wx)
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE" AND NOT WIN32)
    # -fPIC as in the libraries instead of -fPIE: the precompiled header takes no other.
    set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
    target_compile_options(${target} PRIVATE -fPIC)
  endif()
  target_precompile_headers(${target} REUSE_FROM wx_pch)
endfunction()
