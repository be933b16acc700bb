// The exported entry point of liblumeric_export.so.
#include <exception>
#include <string>

#include "driver/ExportRun.h"
#include "lumeric/export.h"

using lumeric::ExportFormat;

extern "C" int ExportVRMLLumeric(const char* inputPath, const char* outputPath, const char* format,
                                 CReportErrorView* view) {
  try {
    lumeric::ExportRequest request;
    request.inputPath = inputPath != nullptr ? inputPath : "";
    request.directory = "";
    request.outputPath = outputPath != nullptr ? outputPath : "";
    if (request.outputPath.empty()) {
      if (view != nullptr) view->post("No output file named", 1);
      return 1;
    }
    const bool known = format != nullptr && format[0] != '\0'
                           ? lumeric::exportFormatByName(format, request.format)
                           : lumeric::exportFormatOfPath(request.outputPath, request.format);
    if (!known) {
      const std::string text = format != nullptr && format[0] != '\0'
                                   ? std::string("Unknown export format \"") + format + "\""
                                   : "No export format for the extension of " + request.outputPath;
      if (view != nullptr) view->post(text.c_str(), 1);
      return 1;
    }
    return lumeric::runExport(request, view) > 0 ? 1 : 0;
  } catch (const std::exception&) {
    if (view != nullptr) view->post("Out of memory", 1);
  } catch (...) {
    if (view != nullptr) view->post("Internal error", 1);
  }
  return 1;
}
