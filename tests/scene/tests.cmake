set(LUMERIC_SCENE_GRAPH_TESTS
  scene/NodeVisitTest.cpp
)
