set(LUMERIC_READER_TESTS
  reader/HostileSceneTest.cpp
  reader/QvSceneInputTest.cpp
  reader/StatementKeywordTest.cpp
)
