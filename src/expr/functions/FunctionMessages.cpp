#include "expr/functions/FunctionMessages.h"

#include <cstdarg>
#include <cstdio>

#include "core/QvContext.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The context formats its own prefix; the text is formatted here first so
// that both calls share one way into it.
void post(FieldExpression* at, const char* format, va_list args) {
  char text[QvContext::kMessageLimit + 1];
  std::vsnprintf(text, sizeof text, format, args);
  reportAtExpression(at, "%s", text);
}

}  // namespace

Term* refuseCall(FieldExpression* at, const char* format, ...) {
  va_list args;
  va_start(args, format);
  post(at, format, args);
  va_end(args);
  return nullptr;
}

void reportAndGoOn(FieldExpression* at, const char* format, ...) {
  va_list args;
  va_start(args, format);
  post(at, format, args);
  va_end(args);
}

}  // namespace lumeric
