set(LUMERIC_DRIVER_SOURCES
  src/driver/FieldOverrides.cpp
  src/driver/LibrarySetUp.cpp
  src/driver/PlainScene.cpp
  src/driver/Translation.cpp
)
