set(LUMERIC_DRIVER_SOURCES
  src/driver/LibrarySetUp.cpp
  src/driver/Translation.cpp
)
