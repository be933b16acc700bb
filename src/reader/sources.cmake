set(LUMERIC_READER_SOURCES
  src/reader/FieldReading.cpp
  src/reader/NodeReader.cpp
  src/reader/QvSceneInput.cpp
  src/reader/QvUnknownNode.cpp
  src/reader/ReadErrors.cpp
)
