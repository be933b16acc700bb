set(LUMERIC_EXPR_SOURCES
  src/expr/Term.cpp
  src/expr/TermArena.cpp
)
