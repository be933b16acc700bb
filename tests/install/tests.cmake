# The installed tree: install into a scratch prefix under the build tree,
# then build one host program against it through find_package and one
# through pkg-config, and run a translation with each and with the
# installed command.
find_program(LUMERIC_PKG_CONFIG pkg-config)
if(NOT LUMERIC_PKG_CONFIG)
  message(STATUS "pkg-config not found: the install test is not registered (run scripts/install-deps.sh)")
  return()
endif()

# Programs linked with a sanitized library must be sanitized themselves.
set(lumeric_consumer_flags "")
if(LUMERIC_SANITIZE)
  set(lumeric_consumer_flags "-fsanitize=address,undefined")
endif()

add_test(NAME install.tree
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/install_test.sh
    --cmake ${CMAKE_COMMAND}
    --pkg-config ${LUMERIC_PKG_CONFIG}
    --cxx ${CMAKE_CXX_COMPILER}
    --flags "${lumeric_consumer_flags}"
    --build-dir ${PROJECT_BINARY_DIR}
    --work-dir ${CMAKE_CURRENT_BINARY_DIR}/install-test
    --tests-dir ${CMAKE_CURRENT_LIST_DIR}/..
    --libdir ${CMAKE_INSTALL_LIBDIR}
    --examples-dir ${PROJECT_SOURCE_DIR}/examples)
set_tests_properties(install.tree PROPERTIES TIMEOUT 240)

# The manual page must format without a warning.
find_program(LUMERIC_GROFF groff)
if(LUMERIC_GROFF)
  add_test(NAME install.manpage
    COMMAND ${LUMERIC_GROFF} -t -man -ww -z -rCHECKSTYLE=3 ${PROJECT_SOURCE_DIR}/docs/lumeric.1)
  set_tests_properties(install.manpage PROPERTIES FAIL_REGULAR_EXPRESSION ".")
endif()
