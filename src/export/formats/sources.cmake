# The format writers of the exporter and what writes their files.
set(LUMERIC_EXPORT_FORMAT_SOURCES
  src/export/formats/ExportFiles.cpp
  src/export/formats/ExportFormat.cpp
  src/export/formats/ExportText.cpp
  src/export/formats/GltfWriter.cpp
  src/export/formats/MatrixParts.cpp
  src/export/formats/ObjWriter.cpp
  src/export/formats/StlWriter.cpp
  src/export/formats/TinyGltfImplementation.cpp
  src/export/formats/WorldPlacement.cpp
  src/export/formats/WriteExport.cpp
  src/export/formats/X3dWriter.cpp
)
