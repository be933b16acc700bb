set(LUMERIC_WRITER_TESTS
  writer/DecimalWritingTest.cpp
  writer/RoundingTest.cpp
  writer/SceneWriterTest.cpp
)
