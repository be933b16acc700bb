set(LUMERIC_DRIVER_TESTS
  driver/QvContextTest.cpp
)
