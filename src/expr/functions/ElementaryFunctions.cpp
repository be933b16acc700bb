#include "expr/functions/ElementaryFunctions.h"

#include <cmath>

#include "expr/functions/FunctionMessages.h"

namespace lumeric {

Term* piConstant(Term* const*, FieldExpression*) { return ScalarTerm::make(3.141592653589793); }

Term* eConstant(Term* const*, FieldExpression*) { return ScalarTerm::make(2.718281828459045); }

Term* naturalLogarithm(Term* const* arguments, FieldExpression* at) {
  const double x = scalarArgument(arguments, 0);
  if (x <= 0.0) return refuseCall(at, "Cannot compute the log of %g", x);
  return ScalarTerm::make(std::log(x));
}

Term* decimalLogarithm(Term* const* arguments, FieldExpression* at) {
  const double x = scalarArgument(arguments, 0);
  if (x <= 0.0) return refuseCall(at, "Cannot compute the log10 of %g", x);
  return ScalarTerm::make(std::log10(x));
}

Term* arcTangentOfQuotient(Term* const* arguments, FieldExpression* at) {
  const double a = scalarArgument(arguments, 0);
  const double b = scalarArgument(arguments, 1);
  if (b != 0.0) return ScalarTerm::make(std::atan2(a, b));
  if (a == 0.0) return ScalarTerm::make(0.0);
  return refuseCall(at, "Error: Cannot compute atan2 of %g and %g", a, b);
}

Term* roundToMultiple(Term* const* arguments, FieldExpression*) {
  const double a = scalarArgument(arguments, 0);
  const double b = scalarArgument(arguments, 1);
  if (!(b > 0.0)) return ScalarTerm::make(a);
  const double quotient = a / b;
  double whole;
  // The fraction keeps the quotient's sign, so a negative quotient always
  // goes down (round(-2.2, 1) is -3).
  const double fraction = std::modf(quotient, &whole);
  return ScalarTerm::make((fraction >= 0.5 ? std::ceil(quotient) : std::floor(quotient)) * b);
}

Term* largerOf(Term* const* arguments, FieldExpression*) {
  const double a = scalarArgument(arguments, 0);
  const double b = scalarArgument(arguments, 1);
  return ScalarTerm::make(b <= a ? a : b);
}

Term* smallerOf(Term* const* arguments, FieldExpression*) {
  const double a = scalarArgument(arguments, 0);
  const double b = scalarArgument(arguments, 1);
  return ScalarTerm::make(a <= b ? a : b);
}

}  // namespace lumeric
