// Where INCLUDE finds a file: as written (from the current directory),
// then beside the including file, then in each -I directory in order; and
// how --deps, --confine and messages name what it found.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

std::string part(int width) { return "#VRML V1.0 ascii\nCube { width " + std::to_string(width) + " }\n"; }

// The files of the search, each holding a Cube of its own width.
void writeCandidates(const ScratchDir& dir) {
  dir.write("cup.wrl", part(1));           // as written, from the working directory
  dir.write("mk/cup.wrl", part(2));        // beside the scene
  dir.write("first/cup.wrl", part(3));     // the first -I
  dir.write("second/cup.wrl", part(4));    // the second -I
}

TEST(IncludeSearch, TriesAsWrittenThenBesideThenEachDirectoryInOrder) {
  struct {
    const char* what;
    std::vector<std::string> remove;  // files taken away first
    std::string include;
    int width;  // 0: none found
    std::string opened;
  } cases[] = {
      {"as written", {}, "cup.wrl", 1, "cup.wrl"},
      {"beside the including file", {"cup.wrl"}, "cup.wrl", 2, "mk/cup.wrl"},
      {"first -I", {"cup.wrl", "mk/cup.wrl"}, "cup.wrl", 3, "first/cup.wrl"},
      {"second -I", {"cup.wrl", "mk/cup.wrl", "first/cup.wrl"}, "cup.wrl", 4, "second/cup.wrl"},
      {"nowhere", {}, "jar.wrl", 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    ScratchDir dir;
    writeCandidates(dir);
    for (const std::string& name : c.remove) std::remove((dir.path() + "/" + name).c_str());
    dir.write("mk/scene.vlm", "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE " + c.include + "\n}\n");
    CommandResult run =
        runLumeric({"-I", "first", "-Isecond/", "--deps", "scene.d", "-o", "scene.wrl", "mk/scene.vlm"}, dir.path());
    if (c.width == 0) {
      EXPECT_EQ(run.status, 1);
      EXPECT_EQ(run.err, "error: File \"mk/scene.vlm\" Line 3: Cannot open INCLUDE file " + c.include + "\n");
      EXPECT_EQ(dir.read("scene.d"), "scene.wrl: mk/scene.vlm\n");
      continue;
    }
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(contains(dir.read("scene.wrl"), "width " + std::to_string(c.width) + "\n"));
    EXPECT_EQ(dir.read("scene.d"), "scene.wrl: mk/scene.vlm " + c.opened + "\n\n" + c.opened + ":\n");
  }
}

TEST(IncludeSearch, NestedFilesLookBesideThemselvesAndAreNamedAsOpened) {
  ScratchDir dir;
  dir.write("mk/scene.vlm", "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE parts/wheel.wrl\n}\n");
  dir.write("mk/parts/wheel.wrl", "#VRML V1.0 ascii\nGroup {\n\tINCLUDE hub.wrl\n\tFoo { }\n}\n");
  dir.write("mk/parts/hub.wrl", part(6));
  CommandResult run = runLumeric({"-o", "-", "mk/scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err, "error: File \"mk/parts/wheel.wrl\" Line 4: Unknown class \"Foo\"\n");
  EXPECT_TRUE(contains(run.out, "width 6\n"));
}

TEST(IncludeSearch, AnInputFoundUnderDashDLooksBesideWhereItWasFound) {
  ScratchDir dir;
  dir.write("mk/scene.vlm", "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE cup.wrl\n}\n");
  dir.write("mk/cup.wrl", part(7));
  CommandResult run = runLumeric({"-d", "mk/", "-o", "-", "scene.vlm"}, dir.path());
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_TRUE(contains(run.out, "width 7\n"));
}

TEST(IncludeSearch, ConfinementAppliesToThePlaceFound) {
  ScratchDir dir;
  dir.write("scenes/scene.vlm", "#VRML V1.0 ascii\nSeparator {\n\tINCLUDE cup.wrl\n}\n");
  dir.write("cup.wrl", part(1));        // as written: outside the input's directory
  dir.write("lib/cup.wrl", part(3));    // -I: outside too
  CommandResult refused = runLumeric({"--confine", "-I", "lib", "-o", "-", "scenes/scene.vlm"}, dir.path());
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.err,
            "error: File \"scenes/scene.vlm\" Line 3: Cannot INCLUDE file cup.wrl - Outside the input's directory\n");

  dir.write("scenes/cup.wrl", part(2));  // beside: inside
  CommandResult beside = runLumeric({"--confine", "-I", "lib", "-o", "-", "scenes/scene.vlm"}, dir.path());
  EXPECT_EQ(beside.status, 0) << beside.err;
  EXPECT_TRUE(contains(beside.out, "width 2\n"));
}

}  // namespace
}  // namespace lumeric
