#include "export/Normals.h"

#include <cmath>
#include <unordered_map>

namespace lumeric {

Point3 normalized(const Point3& v) {
  const double length = std::sqrt(v[0] * v[0] + v[1] * v[1] + v[2] * v[2]);
  if (!(length > 0) || !std::isfinite(length)) return {{0, 0, 1}};
  return {{v[0] / length, v[1] / length, v[2] / length}};
}

std::vector<Point3> creaseNormals(const std::vector<std::vector<int>>& faces, const std::vector<Point3>& faceNormals,
                                  double creaseAngle) {
  // The faces around each point.
  std::unordered_map<int, std::vector<int>> around;
  for (size_t f = 0; f < faces.size(); ++f) {
    for (int point : faces[f]) {
      std::vector<int>& list = around[point];
      if (list.empty() || list.back() != static_cast<int>(f)) list.push_back(static_cast<int>(f));
    }
  }
  const double threshold = std::cos(creaseAngle);
  std::vector<Point3> normals;
  for (size_t f = 0; f < faces.size(); ++f) {
    const Point3& own = faceNormals[f];
    for (int point : faces[f]) {
      Point3 sum = own;
      for (int g : around[point]) {
        if (g == static_cast<int>(f)) continue;
        const Point3& other = faceNormals[static_cast<size_t>(g)];
        const double cosine = own[0] * other[0] + own[1] * other[1] + own[2] * other[2];
        if (cosine > threshold) {
          for (int k = 0; k < 3; ++k) sum[k] += other[k];
        }
      }
      normals.push_back(normalized(sum));
    }
  }
  return normals;
}

}  // namespace lumeric
