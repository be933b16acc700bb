set(LUMERIC_CORE_TESTS
  core/AtomsAndTablesTest.cpp
  core/FloatTextTest.cpp
  core/GrowingListsTest.cpp
  core/NumberTextTest.cpp
  core/QvContextTest.cpp
)
