# What an installation consists of: one folder that holds programs, package and libraries side by side, wherever it lies.
# The Debian package puts it at lib/kestrelide, with links to the programs in bin.
set(CMAKE_SKIP_INSTALL_ALL_DEPENDENCY ON)  # tests and benchmarks are not needed for it
if(WIN32)
  set(KESTREL_FOLDER .)
else()
  set(KESTREL_FOLDER lib/kestrelide)
endif()
set(installed workbench scc-register corvane KestrelIDE IsolatedScc scc-provider-host)
if(TARGET SubversionScc)
  list(APPEND installed SubversionScc)
endif()
# The libraries that stand for providers.  Paths begin in their folders: the whole works wherever it lies.
if(TARGET SubversionScc)
  set(isolated ${KESTREL_FOLDER}/isolated/Subversion)
  file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/IsolatedScc.provider
    CONTENT "Provider=../../SubversionScc.so\nHost=../../scc-provider-host\n")
  install(FILES ${CMAKE_BINARY_DIR}/IsolatedScc.provider DESTINATION ${isolated})
  install(TARGETS IsolatedScc LIBRARY DESTINATION ${isolated})
endif()
install(DIRECTORY ${KESTREL_HELP_FOLDER} DESTINATION ${KESTREL_FOLDER})
install(TARGETS ${installed} RUNTIME DESTINATION ${KESTREL_FOLDER} LIBRARY DESTINATION ${KESTREL_FOLDER})
if(WIN32)
  return()
endif()

set(packaging ${CMAKE_SOURCE_DIR}/packaging/debian)
set(link_names kestrelide scc-register)
set(link_programs workbench scc-register)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
foreach(name program IN ZIP_LISTS link_names link_programs)
  file(CREATE_LINK ../${KESTREL_FOLDER}/${program} ${CMAKE_BINARY_DIR}/links/${name} SYMBOLIC)
  install(FILES ${CMAKE_BINARY_DIR}/links/${name} DESTINATION bin)
endforeach()
install(FILES ${packaging}/kestrelide.desktop DESTINATION share/applications)
install(FILES ${packaging}/kestrelide.svg DESTINATION share/icons/hicolor/scalable/apps)
install(FILES ${packaging}/kestrelide.xml DESTINATION share/mime/packages)
install(FILES ${packaging}/kestrelide.1 ${packaging}/scc-register.1 DESTINATION share/man/man1)
install(DIRECTORY samples/ DESTINATION share/doc/kestrelide/examples)
install(FILES ${packaging}/README.Debian ${packaging}/copyright README.md CHANGELOG.md CONTRIBUTING.md SECURITY.md DESTINATION share/doc/kestrelide)
install(DIRECTORY docs DESTINATION share/doc/kestrelide)  # where README.md links to

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kestrelide)
set(CPACK_PACKAGE_CONTACT "KestrelIDE team <team@kestrelide.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "source-control add-in for the SCC API, with a small IDE")
set(CPACK_PACKAGE_DESCRIPTION
"Brings the project that is open in the IDE under the control of any provider that
implements the published SCC API: checked file lists, comments, differences, history,
a commit browser and wizards that place and pull projects. A provider for Subversion
comes with it and is registered for all users.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${packaging}/postinst ${packaging}/prerm)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
include(CPack)
