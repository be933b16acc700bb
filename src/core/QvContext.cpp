#include "core/QvContext.h"

#include <cstdio>

#include "core/VariadicArguments.h"

namespace lumeric {

QvContext theContext;

bool QvContext::pushFile(const char* name, FILE* stream) {
  if (fileDepth + 1 >= kMaxFiles) return false;
  files[++fileDepth] = OpenFile{name, stream};
  return true;
}

void QvContext::popFile() {
  if (fileDepth >= 0) files[fileDepth--] = OpenFile();
}

const char* QvContext::topFile() const { return fileDepth >= 0 ? files[fileDepth].name : nullptr; }

void QvContext::post(int flag, const char* prefix, const char* format, va_list args) {
  char text[kMessageLimit + 1];
  int used = std::snprintf(text, sizeof text, "%s", prefix);
  if (used < 0) used = 0;
  if (used < kMessageLimit) std::vsnprintf(text + used, sizeof text - static_cast<size_t>(used), format, args);
  if (view != nullptr) view->post(text, flag);
}

void QvContext::postAt(int flag, bool hasPlace, const char* file, int line, const char* format, va_list args) {
  char prefix[kMessageLimit + 1] = "";
  if (hasPlace && file != nullptr && file[0] != '\0') {
    std::snprintf(prefix, sizeof prefix, "File \"%s\" Line %d: ", file, line);
  } else if (hasPlace) {
    std::snprintf(prefix, sizeof prefix, "Line %d: ", line);
  }
  post(flag, prefix, format, args);
}

Failure QvContext::reportAt(const char* file, int line, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAt(kError, true, file, line, format, args));
  return Failure();
}

void QvContext::warnAt(const char* file, int line, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(postAt(kWarning, true, file, line, format, args));
}

Failure QvContext::report(const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(post(kError, "", format, args));
  return Failure();
}

void QvContext::warn(const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(post(kWarning, "", format, args));
}

Failure QvContext::reportInFile(const char* format, ...) {
  char prefix[kMessageLimit + 1] = "";
  if (topFile() != nullptr) std::snprintf(prefix, sizeof prefix, "File \"%s\" ", topFile());
  LUMERIC_WITH_VA_ARGS(post(kError, prefix, format, args));
  return Failure();
}

Failure QvContext::reportAtLineInFile(int line, const char* format, ...) {
  // The file is named whenever there is one, even with an empty name, as
  // the reader's messages always did.
  char prefix[kMessageLimit + 1];
  if (topFile() != nullptr) {
    std::snprintf(prefix, sizeof prefix, "File \"%s\" Line %d: ", topFile(), line);
  } else {
    std::snprintf(prefix, sizeof prefix, "Line %d: ", line);
  }
  LUMERIC_WITH_VA_ARGS(post(kError, prefix, format, args));
  return Failure();
}

void QvContext::programError(const char* operation, const char* format, ...) {
  char text[kMessageLimit + 1];
  LUMERIC_WITH_VA_ARGS(std::vsnprintf(text, sizeof text, format, args));
  std::fprintf(stderr, "VRML error in %s(): %s", operation, text);
}

}  // namespace lumeric
