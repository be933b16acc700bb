#include "expr/FunctionCalls.h"

#include "core/QvContext.h"
#include "expr/Term.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

bool allScalars(Term* const* arguments, int count) {
  for (int k = 0; k < count; ++k) {
    if (asScalar(arguments[k]) == nullptr) return false;
  }
  return true;
}

// What a call gets when no function of its argument count, kinds and name
// exists.
Term* notFound(const char* name, Term* const* arguments, int count, FieldExpression* at) {
  if (count == 0) {
    reportAtExpression(at, "Function %s() not found", name);
  } else if (count <= 4 || (count == 6 && allScalars(arguments, count))) {
    reportAtExpression(at, "Function %s(...) not found", name);
  }
  return nullptr;
}

}  // namespace

// No function tables are registered yet: every name is unknown.
Term* callFunction(const char* name, Term* const* arguments, int count, FieldExpression* at) {
  return notFound(name, arguments, count, at);
}

// No unit table is registered yet: every unit is unknown.
Term* applyUnit(Term* term, const char* unit, FieldExpression* at) {
  reportAtExpression(at, "Conversion %s not found", unit);
  return term;
}

}  // namespace lumeric
