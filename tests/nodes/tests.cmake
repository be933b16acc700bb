set(LUMERIC_NODE_TESTS
  nodes/GeometryWriterTest.cpp
  nodes/NodeCopyTest.cpp
  nodes/WallMeshTest.cpp
)
