// CheckSyntax with the extended language on arbitrary bytes.
#include <string>

#include "FuzzHarness.h"
#include "lumeric/lumeric.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::string path = lumeric::writeScene(std::string(reinterpret_cast<const char*>(data), size));
  char directory[] = "";
  char fileType[] = "vlm";
  lumeric::limitNextRun();
  CheckSyntax(&path[0], nullptr, directory, fileType);
  return 0;
}
