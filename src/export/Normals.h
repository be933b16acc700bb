// Normals a shape does not give, made as a VRML 1.0 viewer makes them:
// each corner takes the mean of the normals of the faces around its
// point whose angle with its own face is below the crease angle, so that
// edges below the crease angle look smooth and those above it hard.
#ifndef LUMERIC_EXPORT_NORMALS_H
#define LUMERIC_EXPORT_NORMALS_H

#include <vector>

#include "export/Tessellator.h"

namespace lumeric {

Point3 normalized(const Point3& v);

// `faces` holds each face's point numbers (points equal in position share
// a number), `faceNormals` each face's unit normal.  Returns one unit
// normal per corner, face after face.
std::vector<Point3> creaseNormals(const std::vector<std::vector<int>>& faces, const std::vector<Point3>& faceNormals,
                                  double creaseAngle);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_NORMALS_H
