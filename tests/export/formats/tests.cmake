# The exporter's format writers, fed hand-built scenes and read back by
# independent readers where one is installed (admesh, assimp, view3dscene,
# tinygltf's loader, the Khronos glTF validator).
add_executable(lumeric_export_format_tests
  support/RecordingView.cpp
  support/SceneRunner.cpp
  support/LibrarySetUp.cpp
  export/formats/CliExportTest.cpp
  export/formats/ExportTestScenes.cpp
  export/formats/ExportFilesTest.cpp
  export/formats/GltfWriterTest.cpp
  export/formats/MatrixPartsTest.cpp
  export/formats/ObjWriterTest.cpp
  export/formats/OddScenesTest.cpp
  export/formats/StlWriterTest.cpp
  export/formats/X3dWriterTest.cpp
)
target_include_directories(lumeric_export_format_tests PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_include_directories(lumeric_export_format_tests SYSTEM PRIVATE ${LUMERIC_TINYGLTF_INCLUDE_DIR})
target_link_libraries(lumeric_export_format_tests PRIVATE lumeric_warnings
  lumeric_export_static lumeric_static nlohmann_json::nlohmann_json GTest::gtest GTest::gtest_main)
add_dependencies(lumeric_export_format_tests lumeric_cli)
target_compile_definitions(lumeric_export_format_tests PRIVATE
  LUMERIC_CLI_PATH="$<TARGET_FILE:lumeric_cli>"
  LUMERIC_TEST_DIR="${CMAKE_CURRENT_SOURCE_DIR}"
  LUMERIC_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
gtest_discover_tests(lumeric_export_format_tests DISCOVERY_MODE PRE_TEST
  WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
  PROPERTIES TIMEOUT 300)

# The exporter's shared library seen from a host program, and its exports.
add_executable(lumeric_export_host_program export/formats/ExportHostProgram.cpp)
target_include_directories(lumeric_export_host_program PRIVATE ${PROJECT_SOURCE_DIR}/include ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(lumeric_export_host_program PRIVATE lumeric_export lumeric_warnings)
add_test(NAME export.host_program
  COMMAND lumeric_export_host_program ${CMAKE_CURRENT_SOURCE_DIR}/host/host_scene.vlm
  WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
add_test(NAME export.library_exports
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/check_export_symbols.sh $<TARGET_FILE:lumeric_export>)
