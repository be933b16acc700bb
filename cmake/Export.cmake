# The exporter (src/export/): its own static library above the translator,
# linking the Debian libraries it uses (GLU's tessellator, stb's image
# reading and PNG writing).  The format writers add their sources through
# src/export/formats/sources.cmake.
find_package(PkgConfig REQUIRED)
pkg_check_modules(LUMERIC_GLU REQUIRED IMPORTED_TARGET glu)
find_path(LUMERIC_STB_INCLUDE stb/stb_image_write.h REQUIRED)
find_library(LUMERIC_STB_LIBRARY stb REQUIRED)

include(src/export/sources.cmake)
set(LUMERIC_EXPORT_FORMAT_SOURCES "")
if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/src/export/formats/sources.cmake)
  include(src/export/formats/sources.cmake)
endif()

add_library(lumeric_export_static STATIC ${LUMERIC_EXPORT_SOURCES} ${LUMERIC_EXPORT_FORMAT_SOURCES}
  ${LUMERIC_DRIVER_EXPORT_SOURCES})
target_include_directories(lumeric_export_static PUBLIC include src ${LUMERIC_GENERATED_DIR})
target_include_directories(lumeric_export_static PRIVATE ${LUMERIC_STB_INCLUDE})
set_target_properties(lumeric_export_static PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_link_libraries(lumeric_export_static PUBLIC lumeric_static PRIVATE PkgConfig::LUMERIC_GLU ${LUMERIC_STB_LIBRARY}
  lumeric_warnings)
