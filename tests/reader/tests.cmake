set(LUMERIC_READER_TESTS
  reader/AtomsAndTablesTest.cpp
  reader/FieldExpressionTest.cpp
  reader/GrowingListsTest.cpp
  reader/HostileSceneTest.cpp
  reader/QvSceneInputTest.cpp
)
