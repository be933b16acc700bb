// A host program that knows the exporter only through its public header
// and its shared library.  It exports one scene to every format, checks the
// files it gets and the results and messages of calls that must fail.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "lumeric/export.h"

#include "host/HostChecks.h"

namespace {

using host::CollectingView;
using host::readAll;

host::Checks checks("export host program");

void expect(bool ok, const std::string& what) { checks.expect(ok, what); }

bool exists(const std::string& path) {
  FILE* file = std::fopen(path.c_str(), "rb");
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: lumeric_export_host_program SCENE\n");
    return 2;
  }
  const char* scene = argv[1];
  // Each format by the output's extension, and how its file begins.
  struct Case {
    const char* output;
    const char* format;
    std::string start;
  };
  const Case cases[] = {
      {"host.glb", nullptr, "glTF"},
      {"host.gltf", "", "{"},
      {"host.stl", nullptr, "lumeric "},
      {"host.obj", nullptr, "# lumeric "},
      {"host.x3d", nullptr, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"},
      {"host-wrl.txt", "WRL", "#VRML V1.0 ascii\n"},
      {"host-glb.bin", "glb", "glTF"},
  };
  for (const Case& c : cases) {
    std::remove(c.output);
    CollectingView view;
    expect(ExportVRMLLumeric(scene, c.output, c.format, &view) == 0, std::string("exporting to ") + c.output);
    expect(view.messages.empty(), std::string("no message exporting to ") + c.output);
    expect(readAll(c.output).compare(0, c.start.size(), c.start) == 0, std::string(c.output) + " begins as it should");
  }
  expect(readAll("host.mtl").compare(0, 10, "# lumeric ") == 0, "the OBJ's material library is beside it");

  // Calls that fail post an error, return 1 and write nothing.
  struct Failure {
    const char* input;
    const char* output;
    const char* format;
    const char* message;
  };
  const Failure failures_[] = {
      {scene, "host.fbx", nullptr, "error: No export format for the extension of host.fbx"},
      {scene, "host.glb", "fbx", "error: Unknown export format \"fbx\""},
      {scene, nullptr, "glb", "error: No output file named"},
      {"no-such-scene.vlm", "host-missing.glb", nullptr, "error: Could not open no-such-scene.vlm for reading - Error # 2"},
  };
  for (const Failure& f : failures_) {
    CollectingView view;
    expect(ExportVRMLLumeric(f.input, f.output, f.format, &view) == 1, std::string("result 1 for ") + f.message);
    expect(!view.messages.empty() && view.messages[0] == f.message,
           std::string("message ") + f.message + (view.messages.empty() ? "" : ", got " + view.messages[0]));
  }
  expect(!exists("host.fbx") && !exists("host-missing.glb"), "failed calls write no file");
  expect(ExportVRMLLumeric(scene, "host-quiet.stl", nullptr, nullptr) == 0, "a null view is allowed");

  return checks.result();
}
