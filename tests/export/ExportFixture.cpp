#include "export/ExportFixture.h"

#include <unistd.h>

#include <cmath>
#include <memory>

namespace lumeric {

namespace {

using P = std::array<double, 3>;

P place(const Matrix4& m, const float* p) {
  P out;
  for (int row = 0; row < 3; ++row) out[row] = m[row] * p[0] + m[4 + row] * p[1] + m[8 + row] * p[2] + m[12 + row];
  return out;
}

double det3(const Matrix4& m) {
  return m[0] * (m[5] * m[10] - m[9] * m[6]) - m[4] * (m[1] * m[10] - m[9] * m[2]) + m[8] * (m[1] * m[6] - m[5] * m[2]);
}

Rgb hundredths(float r, float g, float b) {
  return {{static_cast<int>(std::lround(r * 100)), static_cast<int>(std::lround(g * 100)),
           static_cast<int>(std::lround(b * 100))}};
}

}  // namespace

std::string plainScene(const std::string& body) { return "#VRML V1.0 ascii\n" + body + "\n"; }

ExportRun exportText(const std::string& text, const ExportOptions& options, const ScratchDir* dir,
                     const std::string& fileName) {
  std::unique_ptr<ScratchDir> own;
  if (dir == nullptr) {
    own = std::make_unique<ScratchDir>();
    dir = own.get();
  }
  const std::string path = dir->write(fileName, text);
  RecordingView view;
  ExportRun run;
  run.result = buildExportScene(path.c_str(), &view, "", nullptr, options, run.scene);
  run.messages = view.transcript();
  return run;
}

Figures figuresOf(const ExportScene& scene) {
  Figures f;
  bool first = true;
  for (const ExportNode& node : scene.nodes) {
    if (node.mesh < 0) continue;
    const bool mirror = det3(node.matrix) < 0;
    for (const ExportPrimitive& p : scene.meshes[static_cast<size_t>(node.mesh)].primitives) {
      for (size_t v = 0; v < p.vertexCount(); ++v) {
        const P q = place(node.matrix, &p.positions[v * 3]);
        for (int k = 0; k < 3; ++k) {
          f.low[k] = first ? q[k] : std::min(f.low[k], q[k]);
          f.high[k] = first ? q[k] : std::max(f.high[k], q[k]);
        }
        first = false;
      }
      if (p.mode == PrimitiveMode::kLines) f.segments += static_cast<int>(p.indices.size() / 2);
      if (p.mode == PrimitiveMode::kPoints) f.points += static_cast<int>(p.indices.size());
      if (p.mode != PrimitiveMode::kTriangles) continue;
      const ExportMaterial& material = scene.materials[static_cast<size_t>(p.material)];
      for (size_t t = 0; t + 2 < p.indices.size(); t += 3) {
        P a = place(node.matrix, &p.positions[p.indices[t] * 3]);
        P b = place(node.matrix, &p.positions[p.indices[t + 1] * 3]);
        P c = place(node.matrix, &p.positions[p.indices[t + 2] * 3]);
        if (mirror) std::swap(b, c);
        const P u{{b[0] - a[0], b[1] - a[1], b[2] - a[2]}}, w{{c[0] - a[0], c[1] - a[1], c[2] - a[2]}};
        const P n{{u[1] * w[2] - u[2] * w[1], u[2] * w[0] - u[0] * w[2], u[0] * w[1] - u[1] * w[0]}};
        const double area = std::sqrt(n[0] * n[0] + n[1] * n[1] + n[2] * n[2]) / 2;
        f.area += area;
        f.volume += (a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
                     a[2] * (b[0] * c[1] - b[1] * c[0])) / 6;
        ++f.triangles;
        Rgb color = hundredths(material.diffuse[0], material.diffuse[1], material.diffuse[2]);
        if (!p.colors.empty()) {
          const float* rgba = &p.colors[p.indices[t] * 4];
          color = hundredths(rgba[0], rgba[1], rgba[2]);
        }
        f.areaByColor[color] += area;
      }
    }
  }
  return f;
}

}  // namespace lumeric
