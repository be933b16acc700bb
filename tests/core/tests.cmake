set(LUMERIC_CORE_TESTS
  core/FloatTextTest.cpp
  core/NumberTextTest.cpp
  core/QvContextTest.cpp
)
