set(LUMERIC_EXPR_TESTS
  expr/ExpressionFixture.cpp
  expr/ExpressionLexerTest.cpp
  expr/TermOperatorsTest.cpp
  expr/MatrixSolverTest.cpp
  expr/EvaluationTest.cpp
  expr/TestField.cpp
  expr/TestNode.cpp
  expr/FieldReferencesTest.cpp
  expr/FunctionTablesTest.cpp
  expr/OrientationsTest.cpp
  expr/FractalSurfacesTest.cpp

  expr/PlainNumberTest.cpp
  expr/TermArenaTest.cpp
  expr/TruncationTest.cpp
)
