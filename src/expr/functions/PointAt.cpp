#include "expr/functions/PointAt.h"

#include <cfloat>
#include <cmath>

#include "expr/FieldReferences.h"
#include "expr/functions/FunctionMessages.h"
#include "scene/FieldExpression.h"

namespace lumeric {

namespace {

// The angles and divisors below this count as zero, as for single floats.
constexpr double kAngleEpsilon = 1.1920928955078125e-07;

void setOrientation(double x, double y, double z, double angle, double orientation[4]) {
  orientation[0] = x;
  orientation[1] = y;
  orientation[2] = z;
  orientation[3] = angle;
}

double lengthOf(const double v[3]) { return std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]); }

void divideBy(double v[3], double d) {
  for (int k = 0; k < 3; ++k) v[k] /= d;
}

// One attempt with the given up vector on the unit view direction f; false
// when the up vector was parallel to f, which makes the cosine not finite.
bool aimWithUp(const double f[3], const double up[3], double orientation[4]) {
  setOrientation(0.0, 1.0, 0.0, 0.0, orientation);
  const double along = f[0] * up[0] + f[1] * up[1] + f[2] * up[2];
  double u[3] = {up[0] - f[0] * along, up[1] - f[1] * along, up[2] - f[2] * along};
  divideBy(u, lengthOf(u));
  double s[3] = {f[1] * u[2] - f[2] * u[1], f[2] * u[0] - f[0] * u[2], f[0] * u[1] - f[1] * u[0]};
  divideBy(s, lengthOf(s));
  const double n[3] = {-f[0], -f[1], -f[2]};
  const double c = (s[0] + u[1] + n[2] - 1.0) * 0.5;
  if (!std::isfinite(c)) return false;
  const double angle = std::acos(c);
  if (std::fabs(angle) <= kAngleEpsilon) return true;
  orientation[3] = angle;
  const double t = 2.0 * std::sin(angle);
  if (!(std::fabs(t) > kAngleEpsilon)) return true;
  double axis[3] = {(u[2] - n[1]) / t, (n[0] - s[2]) / t, (s[1] - u[0]) / t};
  divideBy(axis, lengthOf(axis));
  setOrientation(axis[0], axis[1], axis[2], angle, orientation);
  return true;
}

Term* orientationTerm(const double orientation[4]) {
  VectorTerm* result = VectorTerm::make(4);
  for (int k = 0; k < 4; ++k) result->elements[k] = orientation[k];
  return result;
}

Term* pointAtTerm(const double eye[3], const double target[3], FieldExpression* at) {
  double orientation[4];
  pointAtOrientation(eye, target, orientation, at);
  return orientationTerm(orientation);
}

// The owner's "position" as a 3-vector, or null (after the look-up's own
// message when the field is missing or has no value).
VectorTerm* ownerPosition(FieldExpression* at) {
  return asVectorOf(localFieldValue(at != nullptr ? at->owner : nullptr, "position", at), 3);
}

}  // namespace

void pointAtOrientation(const double eye[3], const double target[3], double orientation[4], FieldExpression* at) {
  setOrientation(0.0, 1.0, 0.0, 0.0, orientation);
  double f[3] = {target[0] - eye[0], target[1] - eye[1], target[2] - eye[2]};
  const double length = lengthOf(f);
  if (length < DBL_EPSILON) return reportAndGoOn(at, "No direction specificed");
  divideBy(f, length);
  // With +y along the view direction the whole computation is done again
  // with +x as the up vector.
  static const double kUp[3] = {0.0, 1.0, 0.0};
  static const double kSideways[3] = {1.0, 0.0, 0.0};
  if (!aimWithUp(f, kUp, orientation)) aimWithUp(f, kSideways, orientation);
  for (int k = 0; k < 4; ++k) {
    if (!std::isfinite(orientation[k])) return setOrientation(0.0, 1.0, 0.0, 0.0, orientation);
  }
}

Term* pointAtFromPosition(Term* const* arguments, FieldExpression* at) {
  const VectorTerm* eye = ownerPosition(at);
  if (eye == nullptr) {
    return refuseCall(at, "PointAt(x,y,z) can only be used in a node with a SFVec3f field named \"position\"");
  }
  const double target[3] = {scalarArgument(arguments, 0), scalarArgument(arguments, 1),
                            scalarArgument(arguments, 2)};
  return pointAtTerm(eye->elements, target, at);
}

Term* pointAtVectorFromPosition(Term* const* arguments, FieldExpression* at) {
  const VectorTerm* target = asVectorOf(arguments[0], 3);
  if (target == nullptr) return refuseCall(at, "PointAt(vector) can only be used with a vector with three elements");
  const VectorTerm* eye = ownerPosition(at);
  if (eye == nullptr) return refuseCall(at, "PointAt(point) requires the 3D value for point");
  return pointAtTerm(eye->elements, target->elements, at);
}

Term* pointAtVectors(Term* const* arguments, FieldExpression* at) {
  const VectorTerm* eye = asVectorOf(arguments[0], 3);
  const VectorTerm* target = asVectorOf(arguments[1], 3);
  if (eye == nullptr || target == nullptr) {
    return refuseCall(at, "PointAt(vector,vector) can only be used with vectors of three elements");
  }
  return pointAtTerm(eye->elements, target->elements, at);
}

Term* pointAtCoordinates(Term* const* arguments, FieldExpression* at) {
  double points[6];
  for (int k = 0; k < 6; ++k) points[k] = scalarArgument(arguments, k);
  return pointAtTerm(points, points + 3, at);
}

}  // namespace lumeric
