set(LUMERIC_CLI_TESTS
  cli/CommandLineTest.cpp
  cli/HelpAndManualTest.cpp
  cli/MessageFormatTest.cpp
  cli/OverridesAndDepsTest.cpp
)
