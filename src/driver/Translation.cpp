#include "driver/Translation.h"

#include "driver/LibraryState.h"
#include "driver/QvContext.h"

unsigned long gWarn = 0;

namespace lumeric {

int translateScene(const char*, CReportErrorView* view, const char*, char*, const OutputOverride*) {
  theContext.setView(view);
  return 1;
}

int checkScene(const char*, CReportErrorView* view, const char*, const char*) {
  theContext.setView(view);
  return 1;
}

bool outputMayBeChosenByScene() { return true; }

void endOfRunCleanUp() {}

}  // namespace lumeric

extern "C" int ParseVRMLLumeric(char* inputPath, CReportErrorView* view, char* directory, char* outputNameOut) {
  return lumeric::translateScene(inputPath, view, directory, outputNameOut, nullptr);
}

extern "C" int CheckSyntax(char* inputPath, CReportErrorView* view, char* directory, char* fileType) {
  return lumeric::checkScene(inputPath, view, directory, fileType);
}
