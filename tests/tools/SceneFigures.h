// World-space figures of a scene as Coin traverses it (vrml1check figures):
// what an export of the same scene must agree with. SceneFigures.cpp
// describes every figure and the reason for each one that only exists to
// make a comparison lenient where Coin and VRML 1.0 part ways.
#ifndef LUMERIC_TESTS_TOOLS_SCENEFIGURES_H
#define LUMERIC_TESTS_TOOLS_SCENEFIGURES_H

#include <string>
#include <vector>

class SoNode;

namespace figures {

struct Options {
  // Negative: the scene's own Complexity nodes decide. Otherwise a Complexity
  // node with this value (object space) overrides every one in the scene.
  double complexity = -1;
  // Instead of the figures, list the primitives (see SceneFigures.cpp): what
  // the export checks' stand-in exporter writes, to test those checks.
  bool listPrimitives = false;
};

// Traverses `roots` in order under one Separator and returns the figures as
// one JSON object (followed by a newline), or the list of primitives.
std::string computeJson(const std::vector<SoNode*>& roots, const Options& options);

}  // namespace figures

#endif  // LUMERIC_TESTS_TOOLS_SCENEFIGURES_H
