#include "export/formats/ExportRun.h"

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
  ExportScene scene;
  buildExportScene(request.inputPath, &counting, request.directory, request.additions, request.options, scene);
  if (request.additions != nullptr && !request.additions->overrideError.empty()) return counting.errors();
  // A scene that shows nothing because it failed (an input that could not
  // be opened) writes no file.
  if (counting.errors() > 0 && scene.nodes.empty()) return counting.errors();
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
