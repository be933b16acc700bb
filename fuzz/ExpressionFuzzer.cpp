// The expression evaluator on arbitrary text: the text becomes the value of
// fields and statements of a small scene with named nodes and declared
// fields, so that references, assignments and function calls all meet it.
#include <string>

#include "FuzzHarness.h"
#include "lumeric/lumeric.h"

namespace {

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
  char outputName[256];
  char directory[] = "";
  lumeric::limitNextRun();
  ParseVRMLLumeric(&path[0], nullptr, directory, outputName);
  return 0;
}
