set(LUMERIC_SCENE_TESTS
  scenes/ExampleTest.cpp
  scenes/SceneTest.cpp
)
