set(LUMERIC_READER_TESTS
  reader/AtomsAndTablesTest.cpp
  reader/FieldExpressionTest.cpp
  reader/GrowingListsTest.cpp
  reader/HostileSceneTest.cpp
  reader/NumberTextTest.cpp
  reader/QvSceneInputTest.cpp
)
