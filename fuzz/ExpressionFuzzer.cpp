// The expression evaluator on arbitrary text: the text becomes the value of
// fields and statements of a small scene with named nodes and declared
// fields, so that references, assignments and function calls all meet it.
//
// With LUMERIC_FUZZ_REPLAY_CHECK set, each scene is translated three times
// (what outlives runs set back in between) and the third run must post the
// messages and write the bytes of the first: by the third run every text has
// been recorded and is replayed, so this checks the replay against the parse.
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "FuzzHarness.h"
#include "core/LastingState.h"
#include "expr/functions/RandomGenerator.h"
#include "lumeric/lumeric.h"

namespace {

class MessageLog : public CReportErrorView {
 public:
  int post(const char* text, int flag) override {
    log += std::to_string(flag) + ":" + (text != nullptr ? text : "") + "\n";
    return 0;
  }
  std::string log;
};

// The messages and the output of one translation of `path`.
std::string translate(std::string& path) {
  MessageLog messages;
  char outputName[256] = "";
  char directory[] = "";
  lumeric::limitNextRun();
  ParseVRMLLumeric(&path[0], &messages, directory, outputName);
  std::ifstream output(outputName, std::ios::binary);
  std::ostringstream bytes;
  bytes << output.rdbuf();
  return messages.log + "--\n" + bytes.str();
}

void checkReplay(std::string& path) {
  const double quantum = lumeric::precisionQuantum;
  const uint32_t random = lumeric::randomState();
  const std::string first = translate(path);
  for (int run = 2; run <= 3; ++run) {
    lumeric::precisionQuantum = quantum;
    lumeric::setRandomState(random);
    const std::string later = translate(path);
    if (run == 3 && later != first) {
      std::fprintf(stderr, "replayed run differs from the first:\n%s\n==== against ====\n%s\n", first.c_str(),
                   later.c_str());
      std::abort();
    }
  }
}

// The first line of the input is one expression; it must stay on one line
// to be read as one value text.
std::string firstLine(const uint8_t* data, size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  size_t end = text.find_first_of("\r\n");
  if (end != std::string::npos) text.resize(end);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string e = firstLine(data, size);
  const std::string scene =
      "#VRML V1.0 ascii\n"
      "Separator {\n"
      "DEF A Cube { width 2 height 3 depth 4 }\n"
      "DEF B Coordinate3 { point [ 1 2 3, 4 5 6 ] }\n"
      "DEF C Shape { fields [ SFFloat f, MFFloat m, SFVec3f v, SFString s ] f 1 m [ 1, 2 ] v 1 2 3 s \"x\" }\n"
      "DEF D Transform { translation =(" + e + ") }\n"
      "Cube { width " + e + " }\n"
      "Coordinate3 { point [ " + e + ", =" + e + " ] }\n"
      "MatrixTransform { matrix =" + e + " }\n"
      "Material { diffuseColor =" + e + " }\n"
      "Info { string " + e + " }\n"
      "SET C:f " + e + "\n"
      "APPEND C:m " + e + "\n"
      "PRINT " + e + "\n"
      "VARNAME " + e + " Sphere { radius C:f }\n"
      "}\n";
  std::string path = lumeric::writeScene(scene);
  static const bool replayCheck = std::getenv("LUMERIC_FUZZ_REPLAY_CHECK") != nullptr;
  if (replayCheck) {
    checkReplay(path);
    return 0;
  }
  char outputName[256];
  char directory[] = "";
  lumeric::limitNextRun();
  ParseVRMLLumeric(&path[0], nullptr, directory, outputName);
  return 0;
}
