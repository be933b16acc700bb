#include "reader/ReadErrors.h"

#include <cstdio>

#include "core/QvContext.h"
#include "core/VariadicArguments.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

Failure readError(const QvSceneInput* in, const char* format, ...) {
  // Formatted first and posted as "%s": the message is cut as a whole, and
  // a long text may exceed what one message holds.
  char text[10000];
  LUMERIC_WITH_VA_ARGS(std::vsnprintf(text, sizeof text, format, args));
  return theContext.reportAtLineInFile(in != nullptr ? in->getLine() : 0, "%s", text);
}

}  // namespace lumeric
