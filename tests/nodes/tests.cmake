set(LUMERIC_NODE_TESTS
  nodes/NodeCopyTest.cpp
)
