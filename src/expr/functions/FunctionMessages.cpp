#include "expr/functions/FunctionMessages.h"

#include <cstdio>

#include "core/QvContext.h"
#include "core/VariadicArguments.h"
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
  LUMERIC_WITH_VA_ARGS(post(at, format, args));
  return nullptr;
}

void reportAndGoOn(FieldExpression* at, const char* format, ...) {
  LUMERIC_WITH_VA_ARGS(post(at, format, args));
}

}  // namespace lumeric
