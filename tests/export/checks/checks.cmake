# Export checks: each export of each corpus file, example, golden scene and
# scene of tests/export/scenes/ is judged by independent readers (run_export_checks.py
# says how), one test per input so that a failure names the file. They skip
# (status 77) while the command line offers no exports. Also registered: the
# tests of the figure tools themselves, and the harness run against a
# stand-in exporter that is right by construction and against the same
# stand-in making known mistakes. Include after tools/tools.cmake and
# corpus/corpus.cmake (it reuses the corpus directory found there).
if(NOT TARGET vrml1check OR NOT Python3_Interpreter_FOUND)
  message(STATUS "vrml1check or Python 3 missing: the export checks are not registered")
  return()
endif()
find_program(LUMERIC_NODE node)
if(NOT LUMERIC_NODE)
  message(STATUS "Node.js not found: the export checks are not registered (run scripts/install-deps.sh)")
  return()
endif()

set(lumeric_checks_dir ${CMAKE_CURRENT_LIST_DIR})
set(lumeric_export_dir ${CMAKE_CURRENT_LIST_DIR}/..)
set(lumeric_checks_script ${lumeric_checks_dir}/run_export_checks.py)
set(lumeric_checks_base
  ${Python3_EXECUTABLE} ${lumeric_checks_script}
  --vrml1check $<TARGET_FILE:vrml1check>
  --node ${LUMERIC_NODE}
  --source-dir ${PROJECT_SOURCE_DIR})
set(LUMERIC_EXPORT_CHECK_COMMAND ${lumeric_checks_base} --lumeric $<TARGET_FILE:lumeric_cli>)
set(lumeric_export_tests "")

# The figure tools.
add_test(NAME export.checks.coin_figures
  COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tests/tools/figures_test.py $<TARGET_FILE:vrml1check>)
add_test(NAME export.checks.export_figures
  COMMAND ${LUMERIC_NODE} --test ${lumeric_checks_dir}/figures.test.mjs)
add_test(NAME export.checks.scene_expectations
  COMMAND ${lumeric_checks_base} --check-scene-expectations)
list(APPEND lumeric_export_tests
  export.checks.coin_figures export.checks.export_figures export.checks.scene_expectations)

# The harness against the stand-in exporter: every check passes on right
# exports, and each known mistake is caught with the message it deserves.
file(GLOB lumeric_export_scenes CONFIGURE_DEPENDS "${lumeric_export_dir}/scenes/*.wrl")
set(lumeric_scene_arguments "")
foreach(scene IN LISTS lumeric_export_scenes)
  get_filename_component(scene_name "${scene}" NAME)
  list(APPEND lumeric_scene_arguments --scene ${scene_name})
endforeach()
set(lumeric_stand_in_env
  STAND_IN_LUMERIC=$<TARGET_FILE:lumeric_cli> STAND_IN_VRML1CHECK=$<TARGET_FILE:vrml1check>)
add_test(NAME export.checks.stand_in
  COMMAND ${CMAKE_COMMAND} -E env ${lumeric_stand_in_env}
    ${lumeric_checks_base} --lumeric ${lumeric_checks_dir}/stand_in_exporter.sh ${lumeric_scene_arguments})
list(APPEND lumeric_export_tests export.checks.stand_in)
foreach(fault_case
    "inside-out|mirrored_cube.wrl|glb: volume -16 not in"
    "colour|per_face_colours.wrl|a colour Coin does not show"
    "lose-face|state_groups.wrl|glb: area 134 not in")
  string(REPLACE "|" ";" fault_parts "${fault_case}")
  list(GET fault_parts 0 fault)
  list(GET fault_parts 1 fault_scene)
  list(GET fault_parts 2 fault_message)
  add_test(NAME export.checks.stand_in_${fault}
    COMMAND ${CMAKE_COMMAND} -E env ${lumeric_stand_in_env} STAND_IN_FAULT=${fault}
      ${lumeric_checks_base} --lumeric ${lumeric_checks_dir}/stand_in_exporter.sh
      --formats glb,obj --scene ${fault_scene})
  set_tests_properties(export.checks.stand_in_${fault} PROPERTIES PASS_REGULAR_EXPRESSION "${fault_message}")
  list(APPEND lumeric_export_tests export.checks.stand_in_${fault})
endforeach()

# lumeric's exports.
foreach(scene IN LISTS lumeric_export_scenes)
  get_filename_component(scene_name "${scene}" NAME)
  get_filename_component(scene_stem "${scene}" NAME_WLE)
  add_test(NAME export.scene.${scene_stem} COMMAND ${LUMERIC_EXPORT_CHECK_COMMAND} --scene ${scene_name})
  list(APPEND lumeric_export_tests export.scene.${scene_stem})
endforeach()
file(GLOB lumeric_examples CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/examples/*.wrl" "${PROJECT_SOURCE_DIR}/examples/*.vlm")
foreach(example IN LISTS lumeric_examples)
  get_filename_component(example_name "${example}" NAME)
  get_filename_component(example_stem "${example}" NAME_WLE)
  add_test(NAME export.example.${example_stem} COMMAND ${LUMERIC_EXPORT_CHECK_COMMAND} --example ${example_name})
  list(APPEND lumeric_export_tests export.example.${example_stem})
endforeach()
# The golden scenes: the glTF exports must pass the validator (and, without
# errors, agree with Coin's figures).
file(GLOB lumeric_golden_scenes CONFIGURE_DEPENDS
  "${PROJECT_SOURCE_DIR}/tests/scenes/*.wrl" "${PROJECT_SOURCE_DIR}/tests/scenes/*.vlm")
foreach(golden IN LISTS lumeric_golden_scenes)
  get_filename_component(golden_name "${golden}" NAME)
  get_filename_component(golden_stem "${golden}" NAME_WLE)
  add_test(NAME export.golden.${golden_stem}
    COMMAND ${LUMERIC_EXPORT_CHECK_COMMAND} --formats glb,gltf --golden ${golden_name})
  list(APPEND lumeric_export_tests export.golden.${golden_stem})
endforeach()
if(lumeric_corpus_dir AND IS_DIRECTORY "${lumeric_corpus_dir}")
  file(GLOB lumeric_corpus_files CONFIGURE_DEPENDS "${lumeric_corpus_dir}/*.wrl")
  foreach(corpus_file IN LISTS lumeric_corpus_files)
    get_filename_component(corpus_name "${corpus_file}" NAME)
    get_filename_component(corpus_stem "${corpus_file}" NAME_WLE)
    add_test(NAME export.corpus.${corpus_stem} COMMAND ${LUMERIC_EXPORT_CHECK_COMMAND} --corpus ${corpus_name})
    list(APPEND lumeric_export_tests export.corpus.${corpus_stem})
  endforeach()
endif()

set_tests_properties(${lumeric_export_tests} PROPERTIES
  SKIP_RETURN_CODE 77
  TIMEOUT 900
  LABELS export)
