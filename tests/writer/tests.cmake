set(LUMERIC_WRITER_TESTS
  writer/SceneWriterTest.cpp
)
