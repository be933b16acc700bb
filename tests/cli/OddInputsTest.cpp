// Inputs that are not scene files end with one clear message and a normal
// exit; budgets stop scenes that would run for hours.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

TEST(OddInputs, EndWithOneClearMessage) {
  ScratchDir dir;
  dir.write("folder/placeholder", "");
  dir.write("nuls.wrl", std::string(4096, '\0'));
  dir.write("header_then_nuls.wrl", "#VRML V1.0 ascii\n" + std::string(64, '\0'));
  dir.write("binary.wrl", std::string("\x7f" "ELF\x02\x01\x01\0\0\0", 10));
  struct {
    const char* input;
    const char* message;
  } cases[] = {
      {"folder", "error: Could not open folder for reading - Error # 21\n"},
      {"/dev/zero", "error: File \"/dev/zero\" Line 1: File does not have a valid header string\n"},
      {"nuls.wrl", "error: File \"nuls.wrl\" Line 1: File does not have a valid header string\n"},
      {"header_then_nuls.wrl", "error: File \"header_then_nuls.wrl\" Line 2: Extra characters ('\\0') found in input\n"},
      {"binary.wrl", "error: File \"binary.wrl\" Line 1: File does not have a valid header string\n"},
  };
  for (const auto& c : cases) {
    CommandResult run = runLumeric({"-o", "-", c.input}, dir.path());
    EXPECT_EQ(run.status, 1) << c.input;
    EXPECT_EQ(run.err, c.message) << c.input;
    EXPECT_EQ(run.out, "") << c.input;
  }
}

TEST(OddInputs, BudgetOptionsTakeWholeNumbersFromOne) {
  ScratchDir dir;
  for (const char* option : {"--max-evaluations", "--max-nodes"}) {
    for (const char* value : {"0", "-3", "ten", "", "99999999999999999999999"}) {
      CommandResult run = runLumeric({option, value, "scene.vlm"}, dir.path());
      EXPECT_EQ(run.status, 2) << option << " " << value;
      EXPECT_EQ(run.err, std::string("lumeric: option ") + option + " needs a whole number from 1 up, not \"" + value +
                             "\"\nTry 'lumeric --help' for more information.\n");
    }
  }
}

TEST(OddInputs, MemoryBudgetTakesASizeWithAnOptionalSuffix) {
  ScratchDir dir;
  dir.write("scene.vlm", "#VRML V1.0 ascii\nCube {}\n");
  for (const char* value : {"0", "-1K", "12X", "", "5KB", "1.5G", "9999999999G", "K"}) {
    CommandResult run = runLumeric({"--max-memory", value, "-o", "-", "scene.vlm"}, dir.path());
    EXPECT_EQ(run.status, 2) << value;
    EXPECT_EQ(run.err, std::string("lumeric: option --max-memory needs a size in bytes, or with a suffix K, M or G, "
                                   "not \"") + value + "\"\nTry 'lumeric --help' for more information.\n");
  }
  for (const char* value : {"1048576", "64k", "1M", "2g"}) {
    CommandResult run = runLumeric({"--max-memory", value, "-o", "-", "scene.vlm"}, dir.path());
    EXPECT_EQ(run.status, 0) << value << ": " << run.err;
  }
}

}  // namespace
}  // namespace lumeric
