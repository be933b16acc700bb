set(LUMERIC_NODE_TESTS
  nodes/ControlNodesTest.cpp
  nodes/GeometryWriterTest.cpp
  nodes/NodeCopyTest.cpp
  nodes/WallMeshTest.cpp
)
