# The independent-reader tool: loads VRML 1.0 files with Coin, so tests can
# check that lumeric's output is a scene another reader accepts and that it is
# the same scene as a plain input (see vrml1check.cpp for its subcommands).
find_package(Coin CONFIG QUIET)
if(NOT Coin_FOUND)
  message(STATUS "Coin not found: vrml1check and the tests that need it are not built "
                 "(install libcoin-dev, or configure with -DLUMERIC_COIN_TOOLS=OFF)")
  return()
endif()

add_executable(vrml1check ${CMAKE_CURRENT_LIST_DIR}/vrml1check.cpp ${CMAKE_CURRENT_LIST_DIR}/SceneFigures.cpp)
target_link_libraries(vrml1check PRIVATE Coin::Coin lumeric_warnings)

# Tests check written scenes with it through IndependentReader.h.
if(TARGET lumeric_tests)
  target_compile_definitions(lumeric_tests PRIVATE LUMERIC_VRML1CHECK_PATH="$<TARGET_FILE:vrml1check>")
  add_dependencies(lumeric_tests vrml1check)
endif()
