set(LUMERIC_WRITER_SOURCES
  src/writer/SceneWriter.cpp
)
