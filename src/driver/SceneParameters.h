// The customizable values of a scene: every field of a DEF-named PARAMETERS
// node, with what the comments around it say (a caption on the line above,
// a range or a choice after the value), as the command line's --parameters
// prints them and the playground shows them.  Compiled into the exporter's
// library (it writes JSON through nlohmann-json).
#ifndef LUMERIC_DRIVER_SCENEPARAMETERS_H
#define LUMERIC_DRIVER_SCENEPARAMETERS_H

#include <string>
#include <vector>

#include "driver/Translation.h"
#include "lumeric/lumeric.h"

namespace lumeric {

// One choice of a `# [a, b, c]` or `# [10:S, 20:M]` annotation: the value as
// the field reads it and the label shown (the value itself when unlabelled).
struct ParameterOption {
  std::string value;
  std::string label;
};

// What an annotation comment after a value says.
struct ParameterAnnotation {
  bool isRange = false;  // [max], [min:max], [min:step:max]
  double min = 0, step = 0, max = 0;
  bool hasStep = false;
  std::vector<ParameterOption> options;  // a choice
};

// Reads the text of a comment (without "#"); false when it is no
// annotation.
bool parseParameterAnnotation(const std::string& comment, ParameterAnnotation& annotation);

struct SceneParameter {
  std::string node;     // the DEF name, also the group
  std::string field;
  std::string type;     // number, integer, boolean, color, vector, string
  std::string caption;  // empty: none
  // The value the translation uses, as the field writes it (numbers apart
  // by blanks, TRUE/FALSE, a quoted string).
  std::string initial;
  ParameterAnnotation annotation;
};

// Reads and evaluates the scene, messages to `view`, and lists the fields
// of its DEF-named PARAMETERS nodes in document order (a name met again
// adds nothing).  Fields of other types (lists, nodes, images) are left
// out.  Returns what checkScene returns.
int listSceneParameters(const char* inputPath, CReportErrorView* view, RunAdditions* additions,
                        std::vector<SceneParameter>& parameters);

// {"parameters": [{"name": "NODE:FIELD", "caption", "group", "type",
// "initial", "min", "max", "step", "options": [{"name", "value"}]}]}, the
// values as JSON numbers, booleans, arrays of numbers or strings.
std::string parametersJson(const std::vector<SceneParameter>& parameters);

}  // namespace lumeric

#endif  // LUMERIC_DRIVER_SCENEPARAMETERS_H
