set(LUMERIC_SCENE_GRAPH_TESTS
  scene/CopyBudgetTest.cpp
  scene/DefTableTest.cpp
  scene/FieldExpressionTest.cpp
  scene/NodeVisitTest.cpp
  scene/QvGroupNodeTest.cpp
)
