# The command's files but its main: a static library (lumeric_cli_static)
# that the tool and the test binary both link, so each file is compiled
# once.
set(LUMERIC_CLI_SOURCES
  src/cli/CommandLine.cpp
  src/cli/Dependencies.cpp
  src/cli/FileWatch.cpp
  src/cli/MessageFormat.cpp
  src/cli/NameHints.cpp
  src/cli/StderrView.cpp
)
