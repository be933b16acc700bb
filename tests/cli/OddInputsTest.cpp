// Inputs that are not scene files end with one clear message and a normal
// exit.
#include <gtest/gtest.h>

#include <string>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

TEST(OddInputs, EndWithOneClearMessage) {
  ScratchDir dir;
  dir.write("folder/placeholder", "");
  dir.write("nuls.wrl", std::string(4096, '\0'));
  dir.write("header_then_nuls.wrl", "#VRML V1.0 ascii\n" + std::string(64, '\0'));
  struct {
    const char* input;
    const char* message;
  } cases[] = {
      {"folder", "error: Could not open folder for reading - Error # 21\n"},
      {"/dev/zero", "error: File \"/dev/zero\" Line 1: File does not have a valid header string\n"},
      {"nuls.wrl", "error: File \"nuls.wrl\" Line 1: File does not have a valid header string\n"},
      {"header_then_nuls.wrl", "error: File \"header_then_nuls.wrl\" Line 2: Extra characters ('\\0') found in input\n"},
  };
  for (const auto& c : cases) {
    CommandResult run = runLumeric({"-o", "-", c.input}, dir.path());
    EXPECT_EQ(run.status, 1) << c.input;
    EXPECT_EQ(run.err, c.message) << c.input;
    EXPECT_EQ(run.out, "") << c.input;
  }
}

}  // namespace
}  // namespace lumeric
