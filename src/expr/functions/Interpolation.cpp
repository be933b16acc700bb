#include "expr/functions/Interpolation.h"

#include "expr/functions/FunctionMessages.h"

namespace lumeric {

namespace {

// The scalar form says "amount" and the vector form "ammount": both texts
// are kept as users have seen them.
bool amountAccepted(double t, const char* amountWord, FieldExpression* at) {
  if (t >= 0.0 && t <= 1.0) return true;
  reportAndGoOn(at, "Cannot use the interpolate function with an %s of %g", amountWord, t);
  reportAndGoOn(at, "Amount must be between 0 and 1");
  return false;
}

inline double between(double from, double to, double t) { return (to - from) * t + from; }

}  // namespace

Term* interpolateScalars(Term* const* arguments, FieldExpression* at) {
  const double t = scalarArgument(arguments, 2);
  if (!amountAccepted(t, "amount", at)) return nullptr;
  return ScalarTerm::make(between(scalarArgument(arguments, 0), scalarArgument(arguments, 1), t));
}

Term* interpolateVectors(Term* const* arguments, FieldExpression* at) {
  const VectorTerm* p = vectorArgument(arguments, 0);
  const VectorTerm* q = vectorArgument(arguments, 1);
  const double t = scalarArgument(arguments, 2);
  if (!amountAccepted(t, "ammount", at)) return nullptr;
  if (p->length != q->length) return refuseCall(at, "Cannot interpolate vectors of length %d and %d", p->length, q->length);
  VectorTerm* result = VectorTerm::make(p->length);
  for (int32_t k = 0; k < p->length; ++k) result->elements[k] = between(p->elements[k], q->elements[k], t);
  return result;
}

}  // namespace lumeric
