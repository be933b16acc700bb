set(LUMERIC_DRIVER_SOURCES
  src/driver/FieldOverrides.cpp
  src/driver/LibrarySetUp.cpp
  src/driver/PlainScene.cpp
  src/driver/Translation.cpp
)

# The driver's export files: the pipeline from a scene file to its export
# and the exporter's entry point.  They need the exporter's layer and its
# Debian libraries, so they are compiled into the exporter's library
# (cmake/Export.cmake) and never into liblumeric.so; ExportLibrary.cpp only
# into liblumeric_export.so.
set(LUMERIC_DRIVER_EXPORT_SOURCES
  src/driver/ExportPipeline.cpp
  src/driver/ExportRun.cpp
  src/driver/SceneParameters.cpp
)
