// The dependency file of --deps: one rule in make's format that names the
// output file, then the input and every file INCLUDE read, so that make
// translates again when any of them changes.
#ifndef LUMERIC_CLI_DEPENDENCIES_H
#define LUMERIC_CLI_DEPENDENCIES_H

#include <string>
#include <vector>

namespace lumeric {

// `name` as make reads one file name: blanks, tabs, '#', '\' before those
// and ':' escaped with a backslash, '$' doubled.
std::string escapeForMake(const std::string& name);

// "TARGET: PREREQUISITE ...\n", each file once in the order given, then an
// empty rule "FILE:\n" for each prerequisite after the first `sources`
// (the input), so that make does not stop when an included file is removed.
std::string dependencyRule(const std::string& target, const std::vector<std::string>& prerequisites,
                           size_t sources = 1);

}  // namespace lumeric

#endif  // LUMERIC_CLI_DEPENDENCIES_H
