// The orientation that turns one direction onto another: the routine behind
// the four-, six- and twelve-argument Rotate, and the one geometry
// generators call to aim a shape from one point at another.
#ifndef LUMERIC_EXPR_FUNCTIONS_ORIENTATIONBETWEEN_H
#define LUMERIC_EXPR_FUNCTIONS_ORIENTATIONBETWEEN_H

namespace lumeric {

class FieldExpression;

// Writes to `orientation` (axis x, y, z, angle in radians) the rotation that
// turns the direction p2 - p1 onto the direction p4 - p3; each point has
// three coordinates.  When either direction is (about) zero it posts
// "No direction specificed" at `at` (no prefix when `at` is null) and gives
// (0, 0, 1, 0); the caller goes on either way.  Parallel and opposite
// directions leave the axis unnormalised, about zero.
void orientationBetween(const double p1[3], const double p2[3], const double p3[3], const double p4[3],
                        double orientation[4], FieldExpression* at);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_FUNCTIONS_ORIENTATIONBETWEEN_H
