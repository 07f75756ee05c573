# What `cmake --install` puts where: the library in both forms with its headers, a CMake package, a pkg-config file, and
# the preview host where it was built.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_directory ${CMAKE_INSTALL_LIBDIR}/cmake/barhatch)

install(TARGETS barhatch EXPORT barhatchTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development)
install(TARGETS barhatch_static EXPORT barhatchTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(FILES include/barhatch.h include/barhatch_mark.h include/barhatch.hpp include/barhatch_values.hpp
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)

install(EXPORT barhatchTargets NAMESPACE barhatch:: DESTINATION ${package_directory} COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/barhatchConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES cmake/barhatchConfig.cmake ${PROJECT_BINARY_DIR}/barhatchConfigVersion.cmake
  DESTINATION ${package_directory} COMPONENT development)

# Paths in the pkg-config file follow the place of the file itself, so that an unpacked package can be used where it lies.
file(RELATIVE_PATH BARHATCH_PC_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
string(REGEX REPLACE "/$" "" BARHATCH_PC_PREFIX "${BARHATCH_PC_PREFIX}")
configure_file(cmake/barhatch.pc.in ${PROJECT_BINARY_DIR}/barhatch.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/barhatch.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

foreach(component runtime development tool)
  set(documents_of_runtime lib${PROJECT_NAME}${PROJECT_VERSION_MAJOR})
  set(documents_of_development lib${PROJECT_NAME}-dev)
  set(documents_of_tool ${PROJECT_NAME})
  if(NOT component STREQUAL tool OR BARHATCH_BUILD_TOOLS)
    install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${documents_of_${component}} RENAME copyright
      COMPONENT ${component})
    install(FILES CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${documents_of_${component}}
      COMPONENT ${component})
  endif()
endforeach()

if(BARHATCH_BUILD_TOOLS)
  set_target_properties(barhatch_preview PROPERTIES INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
  install(TARGETS barhatch_preview RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS tools/barhatch.1)
  set(manual ${PROJECT_BINARY_DIR}/barhatch.1.gz)
  execute_process(COMMAND gzip -9nc tools/barhatch.1 WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_FILE ${manual}
    COMMAND_ERROR_IS_FATAL ANY)
  install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES tools/barhatch.bash DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions
    RENAME barhatch COMPONENT tool)
endif()
