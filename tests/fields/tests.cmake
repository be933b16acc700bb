set(LUMERIC_FIELD_TESTS
  fields/FieldFixture.cpp
  fields/FieldWriteTest.cpp
  fields/FieldExchangeTest.cpp
  fields/FieldCopyTest.cpp
  fields/ExpressionStoreTest.cpp
)
