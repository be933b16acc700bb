set(LUMERIC_DRIVER_TESTS
  driver/SceneParametersTest.cpp
)
