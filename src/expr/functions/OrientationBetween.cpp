#include "expr/functions/OrientationBetween.h"

#include <cfloat>
#include <cmath>

#include "expr/functions/FunctionMessages.h"

namespace lumeric {

void orientationBetween(const double p1[3], const double p2[3], const double p3[3], const double p4[3],
                        double orientation[4], FieldExpression* at) {
  orientation[0] = 0.0;
  orientation[1] = 0.0;
  orientation[2] = 1.0;
  orientation[3] = 0.0;
  const double u[3] = {p2[0] - p1[0], p2[1] - p1[1], p2[2] - p1[2]};
  const double w[3] = {p4[0] - p3[0], p4[1] - p3[1], p4[2] - p3[2]};
  const double lengths = std::sqrt(u[0] * u[0] + u[1] * u[1] + u[2] * u[2]) *
                         std::sqrt(w[0] * w[0] + w[1] * w[1] + w[2] * w[2]);
  if (lengths < DBL_EPSILON) return reportAndGoOn(at, "No direction specificed");
  // The cosine is not clamped: directions that are parallel up to rounding
  // may give a cosine just beyond 1, and the angle is then what acos gives.
  const double cosine = (u[0] * w[0] + u[1] * w[1] + u[2] * w[2]) / lengths;
  // Term by term, so that the signs of zero components are always the same.
  const double axis[3] = {u[1] * w[2] - u[2] * w[1], u[2] * w[0] - u[0] * w[2], u[0] * w[1] - u[1] * w[0]};
  const double axisLength = std::sqrt(axis[0] * axis[0] + axis[1] * axis[1] + axis[2] * axis[2]);
  for (int k = 0; k < 3; ++k) orientation[k] = axisLength > DBL_EPSILON ? axis[k] / axisLength : axis[k];
  orientation[3] = std::acos(cosine);
}

}  // namespace lumeric
