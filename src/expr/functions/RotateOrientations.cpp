#include "expr/functions/RotateOrientations.h"

#include "expr/functions/FunctionMessages.h"
#include "expr/functions/OrientationBetween.h"

namespace lumeric {

namespace {

Term* orientationOf(const double* p1, const double* p2, const double* p3, const double* p4, FieldExpression* at) {
  VectorTerm* result = VectorTerm::make(4);
  orientationBetween(p1, p2, p3, p4, result->elements, at);
  return result;
}

}  // namespace

Term* rotateBetweenPoints(Term* const* arguments, FieldExpression* at) {
  const VectorTerm* points[4];
  for (int k = 0; k < 4; ++k) {
    points[k] = asVectorOf(arguments[k], 3);
    if (points[k] == nullptr) {
      return refuseCall(at, "Rotate(vector,vector,vector,vector) can only be used with vectors of three elements");
    }
  }
  return orientationOf(points[0]->elements, points[1]->elements, points[2]->elements, points[3]->elements, at);
}

Term* rotateBetweenDirections(Term* const* arguments, FieldExpression* at) {
  static const double kOrigin[3] = {0.0, 0.0, 0.0};
  double directions[6];
  for (int k = 0; k < 6; ++k) directions[k] = scalarArgument(arguments, k);
  return orientationOf(kOrigin, directions, kOrigin, directions + 3, at);
}

Term* rotateBetweenCoordinates(Term* const* arguments, FieldExpression* at) {
  double points[12];
  for (int k = 0; k < 12; ++k) points[k] = scalarArgument(arguments, k);
  return orientationOf(points, points + 3, points + 6, points + 9, at);
}

}  // namespace lumeric
