// Export tests: a scene text exported through the whole pipeline, and the
// world-space figures of the result computed here, from the ExportScene
// alone, so that tests compare them with figures worked out by hand.
#ifndef LUMERIC_TESTS_EXPORT_EXPORTFIXTURE_H
#define LUMERIC_TESTS_EXPORT_EXPORTFIXTURE_H

#include <array>
#include <map>
#include <string>

#include "export/ExportScene.h"
#include "driver/ExportPipeline.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {

struct ExportRun {
  ExportScene scene;
  std::string messages;  // the transcript
  int result = -1;
};

// Writes `text` as `fileName` into `dir` (a fresh one when null) and
// exports it from there.
ExportRun exportText(const std::string& text, const ExportOptions& options = ExportOptions(),
                     const ScratchDir* dir = nullptr, const std::string& fileName = "scene.wrl");

// "#VRML V1.0 ascii" and `body`.
std::string plainScene(const std::string& body);

using Rgb = std::array<int, 3>;  // a diffuse colour in hundredths

struct Figures {
  std::array<double, 3> low{{0, 0, 0}};
  std::array<double, 3> high{{0, 0, 0}};
  double area = 0;
  // Signed volume enclosed by the triangles as a viewer shows them (a
  // mirrored node's triangles turned): positive for closed shapes whose
  // faces look outwards.
  double volume = 0;
  int triangles = 0;
  int segments = 0;
  int points = 0;
  // Triangle area by the colour shown: the vertex colour of its first
  // corner, else its material's diffuse colour.
  std::map<Rgb, double> areaByColor;
};

Figures figuresOf(const ExportScene& scene);

}  // namespace lumeric

#endif  // LUMERIC_TESTS_EXPORT_EXPORTFIXTURE_H
