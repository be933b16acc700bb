set(LUMERIC_FUZZ_REGRESSION_TESTS
  fuzz/FuzzRegressionTest.cpp
)
