// ParseVRMLLumeric on arbitrary bytes.
#include <string>

#include "FuzzHarness.h"
#include "lumeric/lumeric.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string path = lumeric::writeScene(std::string(reinterpret_cast<const char*>(data), size));
  char outputName[256];
  char directory[] = "";
  lumeric::limitNextRun();
  ParseVRMLLumeric(&path[0], nullptr, directory, outputName);
  return 0;
}
