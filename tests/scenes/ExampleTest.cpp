// Every example scene of the gallery translates without an error, and what
// it writes loads in the independent VRML 1.0 reader.
#include <dirent.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/SceneRunner.h"
#include "tools/IndependentReader.h"

namespace lumeric {
namespace {

const std::string kExampleDir = LUMERIC_TEST_DIR "/../examples";

std::vector<std::string> discoverExamples() {
  std::vector<std::string> names;
  if (DIR* dir = opendir(kExampleDir.c_str())) {
    while (dirent* entry = readdir(dir)) {
      std::string name = entry->d_name;
      auto endsWith = [&](const char* tail) {
        return name.size() > 4 && name.compare(name.size() - 4, 4, tail) == 0;
      };
      if (endsWith(".vlm") || endsWith(".wrl")) names.push_back(name);
    }
    closedir(dir);
  }
  std::sort(names.begin(), names.end());
  return names;
}

class ExampleTest : public ::testing::TestWithParam<std::string> {};

TEST_P(ExampleTest, TranslatesCleanlyAndLoads) {
  ScratchDir work;
  CommandResult run = runLumeric({"-o", "-", kExampleDir + "/" + GetParam()}, work.path());
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err.find("error"), std::string::npos) << run.err;
  ASSERT_FALSE(run.out.empty());
  EXPECT_TRUE(LoadsInIndependentReader(run.out));
}

TEST(Examples, AreThere) { EXPECT_GE(discoverExamples().size(), 5u); }

INSTANTIATE_TEST_SUITE_P(Examples, ExampleTest, ::testing::ValuesIn(discoverExamples()),
                         [](const ::testing::TestParamInfo<std::string>& tested) { return testIdFromFileName(tested.param); });

}  // namespace
}  // namespace lumeric
