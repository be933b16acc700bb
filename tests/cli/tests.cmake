set(LUMERIC_CLI_TESTS
  cli/CommandLineTest.cpp
)
