// The exporter's traversal on arbitrary bytes read as plain VRML 1.0.
#include <cstdio>
#include <string>

#include "FuzzHarness.h"
#include "core/RunState.h"
#include "driver/ExportPipeline.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  // The scene file stands beside anything the input inlines.
  std::string path = lumeric::writeScene(text);
  lumeric::limitNextRun();
  FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return 0;
  lumeric::ExportOptions options;
  options.maxVisits = 20000;
  lumeric::ExportScene scene;
  lumeric::buildPlainExportScene(file, path.c_str(), lumeric::theRun.limits, nullptr, options, scene);
  std::fclose(file);
  return 0;
}
