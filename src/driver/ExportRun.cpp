#include "driver/ExportRun.h"

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

// Whether a file of the export would replace one the run read; each such
// file is refused with an error, and then nothing of the export is written.
bool replacesFileRead(const ExportedFiles& files, const RunAdditions& additions, ExportMessages& messages) {
  bool refused = false;
  for (const ExportedFile& file : files) {
    if (!isAmongFiles(file.path.c_str(), additions.filesRead)) continue;
    messages.error("Refusing to overwrite " + file.path + ", which this run reads");
    refused = true;
  }
  return refused;
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
  RunAdditions own;
  RunAdditions& additions = request.additions != nullptr ? *request.additions : own;
  const bool inputRead = additions.inputStream != nullptr || inputOpens(request.inputPath, request.directory);
  ExportScene scene;
  buildExportScene(request.inputPath, &counting, request.directory, &additions, request.options, scene);
  if (!inputRead || !additions.overrideError.empty()) return counting.errors();
  {
    ExportMessages messages(&counting);
    ExportedFiles files;
    if (writeExport(request.format, scene, request.stream != nullptr ? "-" : request.outputPath, files, messages)) {
      messages.flush();
      if (request.stream != nullptr) {
        writeExportToStream(files, request.stream, messages);
      } else if (!replacesFileRead(files, additions, messages)) {
        writeExportedFiles(files, messages);
      }
    }
  }
  return counting.errors();
}

}  // namespace lumeric
