set(LUMERIC_WRITER_TESTS
  writer/RoundingTest.cpp
  writer/SceneWriterTest.cpp
)
