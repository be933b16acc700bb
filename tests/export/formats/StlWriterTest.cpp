#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>

#include "export/formats/ExportTestScenes.h"
#include "export/formats/FormatWriters.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

// Each placement of the cube (volume 8) and the volume it encloses.
struct Placement {
  const char* name;
  Matrix4 matrix;
  double volume;
};

// The first number after `label` and its colon in admesh's report; -1
// when there is none.
double figureAfter(const std::string& report, const std::string& label) {
  const size_t at = report.find(label);
  if (at == std::string::npos) return -1;
  const size_t colon = report.find(':', at);
  if (colon == std::string::npos) return -1;
  return std::strtod(report.c_str() + colon + 1, nullptr);
}

class StlPlacementTest : public ::testing::TestWithParam<Placement> {};

TEST_P(StlPlacementTest, FacetsFaceOutwards) {
  const Placement& placement = GetParam();
  RecordingView view;
  ExportMessages messages(&view);
  const ExportScene scene = cubesScene({placement.matrix});
  ExportedFiles files;
  ASSERT_TRUE(writeStl(scene, "cube.stl", files, messages));
  holdWhole(files);
  ASSERT_EQ(files.size(), 1u);
  bool ok = false;
  const std::vector<Triangle> triangles = readStl(files[0].bytes, ok);
  ASSERT_TRUE(ok);
  EXPECT_EQ(triangles.size(), 12u);
  EXPECT_NEAR(signedVolume(triangles), placement.volume, 1e-4);
  // The stored normal agrees with the winding of each facet.
  for (size_t f = 0; f < triangles.size(); ++f) {
    float n[3];
    std::memcpy(n, files[0].bytes.data() + 84 + f * 50, 12);
    const Triangle& t = triangles[f];
    const double u[3] = {t[1][0] - t[0][0], t[1][1] - t[0][1], t[1][2] - t[0][2]};
    const double v[3] = {t[2][0] - t[0][0], t[2][1] - t[0][1], t[2][2] - t[0][2]};
    const double cross[3] = {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
    EXPECT_GT(cross[0] * n[0] + cross[1] * n[1] + cross[2] * n[2], 0) << "facet " << f;
    EXPECT_NEAR(std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]), 1, 1e-6);
  }
  EXPECT_TRUE(view.messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Placements, StlPlacementTest,
                         ::testing::Values(Placement{"Identity", identityMatrix(), 8},
                                           Placement{"Moved", translation(5, -3, 2), 8},
                                           Placement{"Scaled", scaling(2, 3, 0.5), 24},
                                           Placement{"MirroredX", scaling(-1, 1, 1), 8},
                                           Placement{"MirroredAndRotated",
                                                     multiply(rotationZ(0.7), scaling(1, -2, 1)), 16},
                                           Placement{"DoubleMirror", scaling(-1, -1, 1), 8}),
                         [](const ::testing::TestParamInfo<Placement>& tested) { return tested.param.name; });

TEST(StlWriterTest, HeaderNamesLumericAndIsNotAscii) {
  RecordingView view;
  ExportMessages messages(&view);
  const ExportScene scene;
  ExportedFiles files;
  ASSERT_TRUE(writeStl(scene, "empty.stl", files, messages));
  holdWhole(files);
  ASSERT_EQ(files[0].bytes.size(), 84u);
  EXPECT_EQ(files[0].bytes.compare(0, 8, "lumeric "), 0);
  bool ok = false;
  EXPECT_TRUE(readStl(files[0].bytes, ok).empty());
  EXPECT_TRUE(ok);
}

TEST(StlWriterTest, LinesAndPointsLeftOutWithOneWarning) {
  ExportScene scene = cubesScene({identityMatrix(), translation(4, 0, 0)});
  scene.meshes[0].primitives.push_back(linePrimitive(0));
  scene.meshes[0].primitives.push_back(pointPrimitive(0));
  RecordingView view;
  ExportedFiles files;
  {
    ExportMessages messages(&view);
    ASSERT_TRUE(writeStl(scene, "cube.stl", files, messages));
    holdWhole(files);
  }
  bool ok = false;
  EXPECT_EQ(readStl(files[0].bytes, ok).size(), 24u);
  EXPECT_EQ(view.transcript(), "Warning: Lines and points left out of STL\n");
}

TEST(StlWriterTest, AdmeshReadsTheFacetCount) {
  if (!haveProgram("admesh")) GTEST_SKIP() << "admesh is not installed";
  ScratchDir dir;
  ExportScene scene = cubesScene({identityMatrix(), multiply(translation(5, 0, 0), scaling(-1, 1, 1))});
  RecordingView view;
  ExportMessages messages(&view);
  ExportedFiles files;
  ASSERT_TRUE(writeStl(scene, dir.path() + "/cubes.stl", files, messages));
  holdWhole(files);
  const std::string path = dir.write("cubes.stl", files[0].bytes);
  std::string output;
  ASSERT_EQ(runCommand("admesh '" + path + "'", output), 0) << output;
  EXPECT_EQ(figureAfter(output, "Number of facets"), 24) << output;
  EXPECT_EQ(figureAfter(output, "Number of parts"), 2) << output;
  // Both cubes are closed and wound outwards: admesh turns no facet round.
  EXPECT_EQ(figureAfter(output, "Facets reversed"), 0) << output;
  EXPECT_EQ(figureAfter(output, "Backwards edges"), 0) << output;
  EXPECT_NEAR(figureAfter(output, "Volume"), 16, 1e-4) << output;
}

}  // namespace
}  // namespace lumeric
