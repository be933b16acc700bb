// Polygons into triangles.  A convex polygon is fanned from its first
// corner; any other goes through GLU's tessellator (odd winding), which
// handles concave outlines and outlines that cross themselves.
#ifndef LUMERIC_EXPORT_TESSELLATOR_H
#define LUMERIC_EXPORT_TESSELLATOR_H

#include <array>
#include <vector>

namespace lumeric {

using Point3 = std::array<double, 3>;
using Triangle = std::array<int, 3>;

// The polygon's normal by Newell's method (its length is twice the area
// for a planar polygon); zero when the polygon has no area.
Point3 polygonNormal(const std::vector<Point3>& points);

// Triangles of corner numbers (indices into `points`), each wound
// counter-clockwise about `normal`, the polygon's own normal.  `convex`
// fans; otherwise the outline is tessellated.  Triangles without area are
// left out.
std::vector<Triangle> triangulate(const std::vector<Point3>& points, const Point3& normal, bool convex);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_TESSELLATOR_H
