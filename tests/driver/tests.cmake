set(LUMERIC_DRIVER_TESTS
  driver/ManyRunsTest.cpp
  driver/SceneParametersTest.cpp
)
