set(LUMERIC_CLI_TESTS
  cli/CommandLineTest.cpp
  cli/ConfineTest.cpp
  cli/HelpAndManualTest.cpp
  cli/MessageFormatTest.cpp
  cli/OddInputsTest.cpp
  cli/OutputFilesTest.cpp
)
