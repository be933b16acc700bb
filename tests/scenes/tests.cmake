set(LUMERIC_SCENE_TESTS
  scenes/SceneTest.cpp
)
