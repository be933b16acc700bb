#include "cli/Dependencies.h"

#include <algorithm>

namespace lumeric {

std::string escapeForMake(const std::string& name) {
  std::string escaped;
  for (size_t i = 0; i < name.size(); ++i) {
    char c = name[i];
    if (c == '$') {
      escaped += "$$";
      continue;
    }
    if (c == ' ' || c == '\t' || c == '#' || c == ':') {
      // make takes the backslashes before a blank in pairs: double those.
      for (size_t k = i; k > 0 && name[k - 1] == '\\'; --k) escaped += '\\';
      escaped += '\\';
    }
    escaped += c;
  }
  return escaped;
}

std::string dependencyRule(const std::string& target, const std::vector<std::string>& prerequisites,
                           size_t sources) {
  std::vector<std::string> files;
  for (const std::string& file : prerequisites) {
    if (std::find(files.begin(), files.end(), file) == files.end()) files.push_back(file);
  }
  std::string rule = escapeForMake(target) + ":";
  for (const std::string& file : files) rule += " " + escapeForMake(file);
  rule += "\n";
  for (size_t i = sources; i < files.size(); ++i) rule += "\n" + escapeForMake(files[i]) + ":\n";
  return rule;
}

}  // namespace lumeric
