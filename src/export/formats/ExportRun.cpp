#include "export/formats/ExportRun.h"

#include <string>

#include "core/FileAccess.h"
#include "export/ExportMessages.h"
#include "export/formats/ExportFiles.h"
#include "export/formats/FormatWriters.h"

namespace lumeric {

namespace {

// Passes every message on and counts the errors.
class CountingView : public CReportErrorView {
 public:
  explicit CountingView(CReportErrorView* view) : view_(view) {}
  int post(const char* text, int flag) override {
    if (flag != 0) ++errors_;
    return view_ != nullptr ? view_->post(text, flag) : 0;
  }
  int errors() const { return errors_; }

 private:
  CReportErrorView* view_;
  int errors_ = 0;
};

bool opens(const std::string& path) {
  int errorNumber = 0;
  FILE* file = openForReading(path.c_str(), errorNumber);
  if (file != nullptr) std::fclose(file);
  return file != nullptr;
}

// Whether the translation finds its input: as given, else under
// `directory`.
bool inputOpens(const char* inputPath, const char* directory) {
  const std::string input = inputPath != nullptr ? inputPath : "";
  return opens(input) || (directory != nullptr && opens(directory + input));
}

int translateOnly(const ExportRequest& request, CountingView& view) {
  OutputOverride output;
  output.stream = request.stream;
  output.path = request.stream == nullptr ? request.outputPath.c_str() : nullptr;
  char outputName[256] = "";
  translateScene(request.inputPath, &view, request.directory, outputName, &output, request.additions);
  return view.errors();
}

}  // namespace

int runExport(const ExportRequest& request, CReportErrorView* view) {
  CountingView counting(view);
  if (request.format == ExportFormat::kWrl) return translateOnly(request, counting);
  // As the translation writes what it translated, errors or not, an
  // export is written whenever the input was read.
  const bool inputRead = inputOpens(request.inputPath, request.directory);
  ExportScene scene;
  buildExportScene(request.inputPath, &counting, request.directory, request.additions, request.options, scene);
  if (!inputRead) return counting.errors();
  if (request.additions != nullptr && !request.additions->overrideError.empty()) return counting.errors();
  {
    ExportMessages messages(&counting);
    ExportedFiles files;
    if (writeExport(request.format, scene, request.stream != nullptr ? "-" : request.outputPath, files, messages)) {
      messages.flush();
      if (request.stream != nullptr) {
        writeExportToStream(files, request.stream, messages);
      } else {
        writeExportedFiles(files, messages);
      }
    }
  }
  return counting.errors();
}

}  // namespace lumeric
