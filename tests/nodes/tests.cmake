set(LUMERIC_NODE_TESTS
  nodes/ControlNodesTest.cpp
  nodes/NodeCopyTest.cpp
)
