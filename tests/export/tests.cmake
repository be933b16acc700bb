set(LUMERIC_EXPORT_TESTS
  export/ExportFixture.cpp
  export/MaterialBindingTest.cpp
  export/NormalsTest.cpp
  export/PrimitivesTest.cpp
  export/TessellatorTest.cpp
  export/TraversalStateTest.cpp
)
