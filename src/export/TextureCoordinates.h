// Texture coordinates: the default rule of a face set without its own
// (the bounding box's longest side runs S from 0 to 1, the next longest T
// from 0 at the same scale; on a tie X comes before Y before Z) and the
// Texture2Transform applied to every coordinate.
#ifndef LUMERIC_EXPORT_TEXTURECOORDINATES_H
#define LUMERIC_EXPORT_TEXTURECOORDINATES_H

#include <array>
#include <vector>

#include "export/Tessellator.h"

namespace lumeric {

using TexCoord = std::array<float, 2>;

class BoxMapping {
 public:
  // The mapping of the box around `points`.
  explicit BoxMapping(const std::vector<Point3>& points);
  TexCoord at(const Point3& p) const;

 private:
  int sAxis_ = 0;
  int tAxis_ = 1;
  Point3 minimum_{{0, 0, 0}};
  double size_ = 1;
};

// `m` (column-major 3x3) applied to (s, t, 1).
TexCoord transformTexCoord(const std::array<float, 9>& m, const TexCoord& st);

// Texture2Transform's matrix: translation, then rotation and scale about
// the center, scale applied first.
std::array<float, 9> textureTransformMatrix(const double (&translation)[2], double rotation,
                                            const double (&scaleFactor)[2], const double (&center)[2]);
std::array<float, 9> multiply3(const std::array<float, 9>& a, const std::array<float, 9>& b);

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_TEXTURECOORDINATES_H
