// A host program that knows lumeric only through its public header and its
// shared library: it translates a scene, checks it, and reports what the
// library posted.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "lumeric/lumeric.h"

namespace {

class CollectingView : public CReportErrorView {
 public:
  int post(const char* text, int flag) override {
    messages.push_back(std::string(flag ? "error: " : "") + text);
    return 0;
  }
  std::vector<std::string> messages;
};

int fail(const char* what) {
  std::fprintf(stderr, "host program: %s\n", what);
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return fail("usage: lumeric_host_program SCENE");
  CollectingView view;
  char outputName[256] = "";
  char directory[] = "";
  gWarn = 2;
  int result = ParseVRMLLumeric(argv[1], &view, directory, outputName);
  if (result != 0) return fail("ParseVRMLLumeric did not return 0");
  if (std::strcmp(outputName, "output.wrl") != 0) return fail("the output name is not output.wrl");
  FILE* output = std::fopen(outputName, "r");
  if (output == nullptr) return fail("no output.wrl was written");
  char header[64] = "";
  bool headerRead = std::fgets(header, sizeof header, output) != nullptr;
  std::fclose(output);
  if (!headerRead || std::strcmp(header, "#VRML V1.0 ascii\n") != 0) return fail("the output has no VRML header");

  char vlm[] = "VLM";
  CollectingView checkView;
  if (CheckSyntax(argv[1], &checkView, directory, vlm) != 0) return fail("CheckSyntax did not return 0");

  // A file that does not exist reaches the view of this very call.
  CollectingView missingView;
  char missing[] = "no-such-scene.vlm";
  if (ParseVRMLLumeric(missing, &missingView, nullptr, outputName) != 0) return fail("a missing file did not give 0");
  if (missingView.messages.size() != 2) return fail("a missing file did not post two messages");

  for (const std::string& m : view.messages) std::printf("%s\n", m.c_str());
  std::printf("host program: ok\n");
  return 0;
}
