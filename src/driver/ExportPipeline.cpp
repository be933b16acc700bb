#include "driver/ExportPipeline.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string>

#include "core/FileAccess.h"
#include "core/RunState.h"
#include "driver/PlainScene.h"
#include "export/ExportMessages.h"
#include "export/SceneTraversal.h"

namespace lumeric {

namespace {

// The path the translation opened: the input as given, else under
// `directory`, as the translation looks for it.
std::string openedPath(const char* inputPath, const char* directory) {
  std::string path = inputPath != nullptr ? inputPath : "";
  int errorNumber = 0;
  if (FILE* file = openForReading(path.c_str(), errorNumber)) {
    std::fclose(file);
    return path;
  }
  if (directory != nullptr) return std::string(directory) + path;
  return path;
}

// The translation's plain VRML 1.0 text, in memory.
class MemoryText {
 public:
  MemoryText() : stream_(open_memstream(&text_, &size_)) {}
  ~MemoryText() {
    if (stream_ != nullptr) std::fclose(stream_);
    std::free(text_);
  }
  MemoryText(const MemoryText&) = delete;
  MemoryText& operator=(const MemoryText&) = delete;

  FILE* stream() const { return stream_; }
  // Ends writing; the text is then complete.
  void close() {
    if (stream_ != nullptr) std::fclose(stream_);
    stream_ = nullptr;
  }
  const char* text() const { return text_; }
  size_t size() const { return size_; }

 private:
  char* text_ = nullptr;
  size_t size_ = 0;
  FILE* stream_;
};

}  // namespace

void buildPlainExportScene(FILE* text, const char* path, const RunLimits& limits, CReportErrorView* view,
                           const ExportOptions& options, ExportScene& scene) {
  scene = ExportScene();
  ExportMessages messages(view);
  const std::string confinedTo = limits.confine ? resolvedDirectoryOf(path) : std::string();
  try {
    SceneTraversal traversal(scene, messages, options, path, readPlainNodeInRun);
    readPlainScene(text, path, limits, confinedTo.c_str(), [&](QvNode* root) { traversal.traverse(root); });
    // A LOOP's copies make many nodes: the writers hold the scene beside
    // the whole file they make, so it keeps no room to spare.
    scene.nodes.shrink_to_fit();
  } catch (const std::exception&) {
    scene = ExportScene();
    messages.error("Out of memory");
  }
}

int buildExportScene(const char* inputPath, CReportErrorView* view, const char* directory, RunAdditions* additions,
                     const ExportOptions& options, ExportScene& scene) {
  scene = ExportScene();
  // The translation's end restores the run's limits; the reading back
  // keeps those the caller set.
  const RunLimits limits = theRun.limits;
  MemoryText plain;
  if (plain.stream() == nullptr) {
    ExportMessages(view).error("Out of memory");
    return 0;
  }
  OutputOverride output;
  output.stream = plain.stream();
  const int result = translateScene(inputPath, view, directory, nullptr, &output, additions);
  plain.close();
  if (plain.text() == nullptr || plain.size() == 0) return result;
  FILE* text = fmemopen(const_cast<char*>(plain.text()), plain.size(), "r");
  if (text == nullptr) {
    ExportMessages(view).error("Out of memory");
    return result;
  }
  buildPlainExportScene(text, openedPath(inputPath, directory).c_str(), limits, view, options, scene);
  std::fclose(text);
  // What the export read counts as read by the run: --deps names it, and
  // no output may replace it.
  if (additions != nullptr) {
    for (const std::string& path : scene.filesRead) {
      additions->includedFiles.push_back(path);
      FileIdentity identity;
      if (fileIdentityOf(path.c_str(), identity)) additions->filesRead.push_back(identity);
    }
  }
  return result;
}

}  // namespace lumeric
