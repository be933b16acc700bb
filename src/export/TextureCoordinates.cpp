#include "export/TextureCoordinates.h"

#include <algorithm>
#include <cmath>

namespace lumeric {

BoxMapping::BoxMapping(const std::vector<Point3>& points) {
  if (points.empty()) return;
  Point3 lo = points.front(), hi = points.front();
  for (const Point3& p : points) {
    for (int k = 0; k < 3; ++k) {
      lo[k] = std::min(lo[k], p[k]);
      hi[k] = std::max(hi[k], p[k]);
    }
  }
  const double size[3] = {hi[0] - lo[0], hi[1] - lo[1], hi[2] - lo[2]};
  int order[3] = {0, 1, 2};
  std::stable_sort(order, order + 3, [&](int a, int b) { return size[a] > size[b]; });
  sAxis_ = order[0];
  tAxis_ = order[1];
  minimum_ = lo;
  size_ = size[sAxis_] > 0 ? size[sAxis_] : 1;
}

TexCoord BoxMapping::at(const Point3& p) const {
  return {{static_cast<float>((p[sAxis_] - minimum_[sAxis_]) / size_),
           static_cast<float>((p[tAxis_] - minimum_[tAxis_]) / size_)}};
}

TexCoord transformTexCoord(const std::array<float, 9>& m, const TexCoord& st) {
  return {{m[0] * st[0] + m[3] * st[1] + m[6], m[1] * st[0] + m[4] * st[1] + m[7]}};
}

std::array<float, 9> multiply3(const std::array<float, 9>& a, const std::array<float, 9>& b) {
  std::array<float, 9> out{};
  for (int col = 0; col < 3; ++col) {
    for (int row = 0; row < 3; ++row) {
      float sum = 0;
      for (int k = 0; k < 3; ++k) sum += a[k * 3 + row] * b[col * 3 + k];
      out[col * 3 + row] = sum;
    }
  }
  return out;
}

std::array<float, 9> textureTransformMatrix(const double (&translation)[2], double rotation,
                                            const double (&scaleFactor)[2], const double (&center)[2]) {
  auto translate = [](double x, double y) {
    return std::array<float, 9>{{1, 0, 0, 0, 1, 0, static_cast<float>(x), static_cast<float>(y), 1}};
  };
  const float c = static_cast<float>(std::cos(rotation)), s = static_cast<float>(std::sin(rotation));
  const std::array<float, 9> rotate{{c, s, 0, -s, c, 0, 0, 0, 1}};
  const std::array<float, 9> scale{{static_cast<float>(scaleFactor[0]), 0, 0, 0, static_cast<float>(scaleFactor[1]), 0, 0, 0, 1}};
  std::array<float, 9> m = translate(translation[0], translation[1]);
  m = multiply3(m, translate(center[0], center[1]));
  m = multiply3(m, rotate);
  m = multiply3(m, scale);
  return multiply3(m, translate(-center[0], -center[1]));
}

}  // namespace lumeric
