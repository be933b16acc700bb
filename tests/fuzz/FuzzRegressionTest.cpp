// Every input that ever crashed or hung a fuzz target is replayed through
// both entry points and the exporter's plain reading, with the budgets and
// confinement the fuzz targets use, so that the sanitizers of the test
// build see it again.
#include <dirent.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "core/RunState.h"
#include "driver/ExportPipeline.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

const std::string kRegressionDir = LUMERIC_TEST_DIR "/fuzz/regressions";

std::vector<std::string> regressionFiles() {
  std::vector<std::string> names;
  if (DIR* dir = opendir(kRegressionDir.c_str())) {
    while (dirent* entry = readdir(dir)) {
      if (entry->d_name[0] != '.') names.push_back(entry->d_name);
    }
    closedir(dir);
  }
  std::sort(names.begin(), names.end());
  return names;
}

void limitNextRun() {
  theRun.limits.confine = true;
  theRun.limits.maxEvaluations = 100000;
  theRun.limits.maxNodes = 100000;
}

class FuzzRegression : public ::testing::TestWithParam<std::string> {};

TEST_P(FuzzRegression, RunsThroughBothEntryPoints) {
  const std::string text = readFile(kRegressionDir + "/" + GetParam());
  limitNextRun();
  SceneResult translated = translateText(text, "fuzz-input.vlm");
  EXPECT_NE(translated.result, -1);
  limitNextRun();
  SceneResult checked = checkText(text, "vlm", "fuzz-input.vlm");
  EXPECT_NE(checked.result, -1);
  // The run's end gives the next run the default limits again.
  EXPECT_EQ(theRun.limits.maxEvaluations, RunLimits().maxEvaluations);
  EXPECT_FALSE(theRun.limits.confine);
}

TEST_P(FuzzRegression, ExportsAsPlainScene) {
  ScratchDir dir;
  const std::string path = dir.write("fuzz-input.wrl", readFile(kRegressionDir + "/" + GetParam()));
  FILE* file = std::fopen(path.c_str(), "rb");
  ASSERT_NE(file, nullptr);
  limitNextRun();
  ExportOptions options;
  options.maxVisits = 100000;
  ExportScene scene;
  buildPlainExportScene(file, path.c_str(), theRun.limits, nullptr, options, scene);
  std::fclose(file);
  EXPECT_FALSE(theRun.limits.confine);
}

INSTANTIATE_TEST_SUITE_P(Files, FuzzRegression, ::testing::ValuesIn(regressionFiles()),
                         [](const ::testing::TestParamInfo<std::string>& tested) { return testIdFromFileName(tested.param); });

}  // namespace
}  // namespace lumeric
