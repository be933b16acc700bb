set(LUMERIC_CORE_TESTS
  core/NumberTextTest.cpp
  core/QvContextTest.cpp
  core/RoundingTest.cpp
)
