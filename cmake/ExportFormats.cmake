# The exporter's format writers (src/export/formats/), what they need from
# Debian (tinygltf, nlohmann-json), and the exporter's shared library
# liblumeric_export.so, which exports ExportVRMLLumeric and nothing else.
# Include after cmake/Export.cmake, which defines the exporter's static
# library lumeric_export_static from its own sources and these
# (src/export/formats/sources.cmake).
find_package(nlohmann_json 3 REQUIRED)
find_path(LUMERIC_TINYGLTF_INCLUDE_DIR tiny_gltf.h REQUIRED)

target_include_directories(lumeric_export_static SYSTEM PRIVATE ${LUMERIC_TINYGLTF_INCLUDE_DIR})
target_link_libraries(lumeric_export_static PRIVATE nlohmann_json::nlohmann_json)
target_compile_definitions(lumeric_export_static PRIVATE LUMERIC_VERSION="${PROJECT_VERSION}")
# Linked into the shared library too.
set_target_properties(lumeric_export_static PROPERTIES POSITION_INDEPENDENT_CODE ON)

add_library(lumeric_export SHARED src/driver/ExportLibrary.cpp)
target_compile_definitions(lumeric_export PRIVATE LUMERIC_BUILDING_LIBRARY)
target_link_libraries(lumeric_export PRIVATE lumeric_export_static lumeric_static m lumeric_warnings)
set_target_properties(lumeric_export PROPERTIES
  CXX_VISIBILITY_PRESET hidden
  VISIBILITY_INLINES_HIDDEN ON
  LINK_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/driver/exporter.map)
target_link_options(lumeric_export PRIVATE
  -Wl,--version-script=${CMAKE_CURRENT_SOURCE_DIR}/src/driver/exporter.map -Wl,--no-undefined)
