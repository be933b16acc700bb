# What `cmake --install` puts where, and the files through which other
# projects find the installed libraries: a CMake package (find_package(lumeric)
# gives the targets lumeric::lumeric, the translator, and
# lumeric::lumeric_export, the exporter) and a pkg-config file for each
# (lumeric.pc, lumeric-export.pc).
# Include after the targets lumeric, lumeric_export and lumeric_cli are defined.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# liblumeric.so.MAJOR is the name hosts load; .so.MAJOR.MINOR.PATCH the file.
# Minor versions keep the binary interface, 0.x included (see the package
# version file below).
# The same for liblumeric_export.so, which holds a copy of the translator
# and needs no other lumeric library.
foreach(library lumeric lumeric_export)
  set_target_properties(${library} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  target_include_directories(${library} INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endforeach()

set(LUMERIC_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/lumeric)
set(LUMERIC_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/lumeric)

install(TARGETS lumeric_cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS lumeric lumeric_export EXPORT lumericTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/lumeric/lumeric.h ${PROJECT_SOURCE_DIR}/include/lumeric/export.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/lumeric)
install(FILES ${PROJECT_SOURCE_DIR}/docs/lumeric.1
  DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
install(FILES ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/docs/language.md
  DESTINATION ${LUMERIC_DOC_DIR})
# Every example, as the README and --help point to them.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/
  DESTINATION ${LUMERIC_DOC_DIR}/examples
  FILES_MATCHING PATTERN "*.vlm" PATTERN "*.wrl")

# The CMake package.  Every path in it is relative to the installed file, so
# an installed tree can be moved.
install(EXPORT lumericTargets
  NAMESPACE lumeric::
  DESTINATION ${LUMERIC_CMAKE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/lumericConfig.cmake.in
  ${CMAKE_CURRENT_BINARY_DIR}/lumericConfig.cmake
  INSTALL_DESTINATION ${LUMERIC_CMAKE_DIR})
# The package promises what the SONAME promises: every 0.x keeps the binary
# interface of 0.1 (the C functions and the view structure of the public
# headers, which the host's design fixes), so find_package(lumeric 0.1)
# accepts any 0.x from 0.1 on, as liblumeric.so.0 loads any of them.  A
# release that breaks the interface raises the major version, and with it
# the SONAME.
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/lumericConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES
  ${CMAKE_CURRENT_BINARY_DIR}/lumericConfig.cmake
  ${CMAKE_CURRENT_BINARY_DIR}/lumericConfigVersion.cmake
  DESTINATION ${LUMERIC_CMAKE_DIR})

# The pkg-config file finds its prefix from its own place (${pcfiledir}), so
# it too stays right wherever the tree is installed.
file(RELATIVE_PATH LUMERIC_PC_TO_PREFIX
  /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" LUMERIC_PC_TO_PREFIX "${LUMERIC_PC_TO_PREFIX}")
foreach(pc lumeric lumeric-export)
  configure_file(${CMAKE_CURRENT_LIST_DIR}/${pc}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${pc}.pc @ONLY)
  install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()

# Editor support (vim, Emacs, VS Code), which users copy or point their
# editor at; editors/README.md says how.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/editors/
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lumeric/editors
  PATTERN node_modules EXCLUDE
  PATTERN package-lock.json EXCLUDE
  PATTERN .gitignore EXCLUDE)
