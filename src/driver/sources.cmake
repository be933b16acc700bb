set(LUMERIC_DRIVER_SOURCES
  src/driver/QvContext.cpp
  src/driver/LibraryState.cpp
  src/driver/Translation.cpp
)
