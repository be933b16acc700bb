# Corpus tests: lumeric translates every file of the public VRML 1.0 corpus;
# run_corpus.py tells what each test checks. The corpus is not part of the
# repository: it is looked for in $LUMERIC_CORPUS_DIR, else as
# shared/vrml1-corpus in a directory above the source tree. Include this file
# after tools/tools.cmake, so the tests can use vrml1check.
find_package(Python3 COMPONENTS Interpreter QUIET)
if(NOT Python3_Interpreter_FOUND)
  message(STATUS "Python 3 not found: the corpus tests are not registered")
  return()
endif()

set(LUMERIC_CORPUS_COMMAND
  ${Python3_EXECUTABLE} ${CMAKE_CURRENT_LIST_DIR}/run_corpus.py
  --lumeric $<TARGET_FILE:lumeric_cli>
  --source-dir ${PROJECT_SOURCE_DIR})
if(TARGET vrml1check)
  list(APPEND LUMERIC_CORPUS_COMMAND --vrml1check $<TARGET_FILE:vrml1check>)
else()
  message(STATUS "vrml1check not built: the corpus tests do not load lumeric's output")
endif()

# The script finds the corpus again when it runs; here it is looked for only
# to register one test per file.
set(lumeric_corpus_dir "")
if(DEFINED ENV{LUMERIC_CORPUS_DIR})
  set(lumeric_corpus_dir "$ENV{LUMERIC_CORPUS_DIR}")
else()
  set(lumeric_search_dir "${PROJECT_SOURCE_DIR}")
  while(TRUE)
    if(IS_DIRECTORY "${lumeric_search_dir}/shared/vrml1-corpus")
      set(lumeric_corpus_dir "${lumeric_search_dir}/shared/vrml1-corpus")
      break()
    endif()
    get_filename_component(lumeric_parent_dir "${lumeric_search_dir}" DIRECTORY)
    if(lumeric_parent_dir STREQUAL lumeric_search_dir)
      break()
    endif()
    set(lumeric_search_dir "${lumeric_parent_dir}")
  endwhile()
endif()

set(lumeric_corpus_tests "")
if(lumeric_corpus_dir AND IS_DIRECTORY "${lumeric_corpus_dir}")
  file(GLOB lumeric_corpus_files CONFIGURE_DEPENDS "${lumeric_corpus_dir}/*.wrl")
  foreach(corpus_file IN LISTS lumeric_corpus_files)
    get_filename_component(corpus_name "${corpus_file}" NAME)
    get_filename_component(corpus_stem "${corpus_file}" NAME_WLE)
    add_test(NAME corpus.${corpus_stem} COMMAND ${LUMERIC_CORPUS_COMMAND} ${corpus_name})
    list(APPEND lumeric_corpus_tests corpus.${corpus_stem})
  endforeach()
  add_test(NAME corpus.expectations COMMAND ${LUMERIC_CORPUS_COMMAND} --stale-only)
  list(APPEND lumeric_corpus_tests corpus.expectations)
else()
  message(STATUS "VRML 1.0 corpus not found: one corpus test looks for it when it runs")
  add_test(NAME corpus.all COMMAND ${LUMERIC_CORPUS_COMMAND})
  list(APPEND lumeric_corpus_tests corpus.all)
endif()
set_tests_properties(${lumeric_corpus_tests} PROPERTIES
  SKIP_RETURN_CODE 77
  TIMEOUT 900
  LABELS corpus)
