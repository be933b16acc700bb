#include "expr/functions/PointDistances.h"

#include <cmath>

namespace lumeric {

namespace {

// Coordinates k of the first point and k + dimensions of the second.
double distanceOf(Term* const* arguments, int dimensions) {
  double sum = 0.0;
  for (int k = 0; k < dimensions; ++k) {
    const double d = scalarArgument(arguments, k) - scalarArgument(arguments, k + dimensions);
    sum += d * d;
  }
  return std::sqrt(sum);
}

}  // namespace

Term* planeDistance(Term* const* arguments, FieldExpression*) { return ScalarTerm::make(distanceOf(arguments, 2)); }

Term* spaceDistance(Term* const* arguments, FieldExpression*) { return ScalarTerm::make(distanceOf(arguments, 3)); }

Term* midpointOf(Term* const* arguments, FieldExpression*) {
  VectorTerm* middle = VectorTerm::make(3);
  for (int k = 0; k < 3; ++k) {
    const double first = scalarArgument(arguments, k);
    middle->elements[k] = (scalarArgument(arguments, k + 3) - first) * 0.5 + first;
  }
  return middle;
}

}  // namespace lumeric
