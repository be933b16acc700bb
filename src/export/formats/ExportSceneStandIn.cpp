// Stand-ins for the scene model's functions and the pipeline's entry, built
// only while the exporter's core (cmake/Export.cmake) is not in the tree, so
// that the writers and the entry point can be built and tested alone.  The
// stand-in pipeline translates the scene and exports nothing of it.
#include <cstdio>

#include "export/SceneExport.h"

namespace lumeric {

Matrix4 identityMatrix() { return Matrix4{{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}; }

Matrix4 multiply(const Matrix4& a, const Matrix4& b) {
  Matrix4 product{};
  for (int col = 0; col < 4; ++col) {
    for (int row = 0; row < 4; ++row) {
      double sum = 0;
      for (int k = 0; k < 4; ++k) sum += a[k * 4 + row] * b[col * 4 + k];
      product[col * 4 + row] = sum;
    }
  }
  return product;
}

double determinant3(const Matrix4& m) {
  return m[0] * (m[5] * m[10] - m[9] * m[6]) - m[4] * (m[1] * m[10] - m[9] * m[2]) +
         m[8] * (m[1] * m[6] - m[5] * m[2]);
}

bool ExportMaterial::operator==(const ExportMaterial& o) const {
  return name == o.name && diffuse == o.diffuse && ambient == o.ambient && specular == o.specular &&
         emissive == o.emissive && shininess == o.shininess && transparency == o.transparency &&
         texture == o.texture && textureTransform == o.textureTransform && doubleSided == o.doubleSided &&
         unlit == o.unlit;
}

int buildExportScene(const char* inputPath, CReportErrorView* view, const char* directory, RunAdditions* additions,
                     const ExportOptions&, ExportScene& scene) {
  scene = ExportScene();
  FILE* sink = std::tmpfile();
  if (sink == nullptr) return 0;
  OutputOverride output;
  output.stream = sink;
  char outputName[256] = "";
  const int result = translateScene(inputPath, view, directory, outputName, &output, additions);
  std::fclose(sink);
  return result;
}

}  // namespace lumeric
