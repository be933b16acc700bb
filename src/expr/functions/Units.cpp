#include "expr/functions/Units.h"

#include "expr/Term.h"
#include "expr/functions/FunctionMessages.h"
#include "expr/functions/NameCase.h"

namespace lumeric {

namespace {

struct Unit {
  const char* name;
  double factor;
};

const Unit kUnits[] = {
    {"ft", 0.3048},
    {"yd", 0.9144},
    {"in", 0.0254},
    {"cm", 0.01},
    {"m", 1.0},
    {"rad", 1.0},
    {"deg", 0.017453292519943295},   // pi / 180
    {"grad", 0.015707963267948967},  // pi / 200
};

}  // namespace

Term* convertUnit(Term* term, const char* unit, FieldExpression* at) {
  if (ScalarTerm* scalar = asScalar(term)) {
    for (const Unit& u : kUnits) {
      if (!sameNameIgnoringCase(unit, u.name)) continue;
      scalar->value *= u.factor;
      return term;
    }
  }
  reportAndGoOn(at, "Conversion %s not found", unit);
  return term;
}

}  // namespace lumeric
