#include "export/formats/ExportTestScenes.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>

#include <sys/stat.h>
#include <sys/wait.h>

#include "export/formats/ExportFiles.h"

namespace lumeric {

ExportPrimitive cubePrimitive(int material) {
  ExportPrimitive cube;
  cube.material = material;
  // Each face: its normal axis and sign, and two axes across it chosen so
  // that u x v points along the normal.
  struct Face {
    int axis;
    float sign;
    int u;
    int v;
  };
  const Face faces[6] = {{0, 1, 1, 2}, {0, -1, 2, 1}, {1, 1, 2, 0}, {1, -1, 0, 2}, {2, 1, 0, 1}, {2, -1, 1, 0}};
  const float corners[4][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
  for (const Face& face : faces) {
    const uint32_t base = static_cast<uint32_t>(cube.vertexCount());
    for (const auto& corner : corners) {
      float p[3];
      p[face.axis] = face.sign;
      p[face.u] = corner[0];
      p[face.v] = corner[1];
      cube.positions.insert(cube.positions.end(), p, p + 3);
      float n[3] = {0, 0, 0};
      n[face.axis] = face.sign;
      cube.normals.insert(cube.normals.end(), n, n + 3);
      cube.texCoords.push_back((corner[0] + 1) / 2);
      cube.texCoords.push_back((corner[1] + 1) / 2);
    }
    const uint32_t indices[6] = {base, base + 1, base + 2, base, base + 2, base + 3};
    cube.indices.insert(cube.indices.end(), indices, indices + 6);
  }
  return cube;
}

ExportPrimitive linePrimitive(int material) {
  ExportPrimitive lines;
  lines.mode = PrimitiveMode::kLines;
  lines.material = material;
  lines.positions = {0, 0, 0, 1, 0, 0, 1, 1, 0};
  lines.indices = {0, 1, 1, 2};
  return lines;
}

ExportPrimitive pointPrimitive(int material) {
  ExportPrimitive points;
  points.mode = PrimitiveMode::kPoints;
  points.material = material;
  points.positions = {0, 0, 0, 1, 0, 0, 1, 1, 0, 5, 5, 5};
  points.colors = {1, 0, 0, 1, 0, 1, 0, 1, 0, 0, 1, 1, 1, 1, 1, 1};
  points.indices = {0, 1, 2};
  return points;
}

Matrix4 translation(double x, double y, double z) {
  Matrix4 m = identityMatrix();
  m[12] = x;
  m[13] = y;
  m[14] = z;
  return m;
}

Matrix4 scaling(double x, double y, double z) {
  Matrix4 m = identityMatrix();
  m[0] = x;
  m[5] = y;
  m[10] = z;
  return m;
}

Matrix4 rotationZ(double angle) {
  Matrix4 m = identityMatrix();
  m[0] = std::cos(angle);
  m[1] = std::sin(angle);
  m[4] = -std::sin(angle);
  m[5] = std::cos(angle);
  return m;
}

ExportScene cubesScene(const std::vector<Matrix4>& placements) {
  ExportScene scene;
  ExportMaterial red;
  red.name = "Red";
  red.diffuse = {{1, 0, 0}};
  red.doubleSided = false;
  scene.materials.push_back(red);
  ExportMesh mesh;
  mesh.name = "Cube";
  mesh.primitives.push_back(cubePrimitive(0));
  scene.meshes.push_back(mesh);
  for (size_t i = 0; i < placements.size(); ++i) {
    ExportNode node;
    node.name = "Cube" + std::to_string(i + 1);
    node.matrix = placements[i];
    node.mesh = 0;
    scene.nodes.push_back(node);
  }
  return scene;
}

double signedVolume(const std::vector<Triangle>& triangles) {
  double volume = 0;
  for (const Triangle& t : triangles) {
    const auto& a = t[0];
    const auto& b = t[1];
    const auto& c = t[2];
    volume += (a[0] * (b[1] * c[2] - b[2] * c[1]) - a[1] * (b[0] * c[2] - b[2] * c[0]) +
               a[2] * (b[0] * c[1] - b[1] * c[0])) /
              6;
  }
  return volume;
}

std::vector<Triangle> readStl(const std::string& bytes, bool& ok) {
  std::vector<Triangle> triangles;
  ok = false;
  if (bytes.size() < 84) return triangles;
  uint32_t count;
  std::memcpy(&count, bytes.data() + 80, 4);
  if (bytes.size() != 84 + size_t(count) * 50) return triangles;
  for (uint32_t f = 0; f < count; ++f) {
    const char* facet = bytes.data() + 84 + size_t(f) * 50 + 12;  // past the normal
    Triangle t;
    for (int v = 0; v < 3; ++v) {
      for (int i = 0; i < 3; ++i) {
        float value;
        std::memcpy(&value, facet + (v * 3 + i) * 4, 4);
        t[v][i] = value;
      }
    }
    triangles.push_back(t);
  }
  ok = true;
  return triangles;
}

std::vector<Triangle> readObjFaces(const std::string& text) {
  std::vector<std::array<double, 3>> positions;
  std::vector<Triangle> triangles;
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    std::istringstream words(line);
    std::string key;
    words >> key;
    if (key == "v") {
      std::array<double, 3> p;
      words >> p[0] >> p[1] >> p[2];
      positions.push_back(p);
    } else if (key == "f") {
      std::vector<std::array<double, 3>> corners;
      std::string corner;
      while (words >> corner) corners.push_back(positions.at(std::stoul(corner) - 1));
      for (size_t i = 1; i + 1 < corners.size(); ++i) triangles.push_back({{corners[0], corners[i], corners[i + 1]}});
    }
  }
  return triangles;
}

const ExportedFile* fileEndingWith(const ExportedFiles& files, const std::string& suffix) {
  for (const ExportedFile& file : files) {
    if (file.path.size() >= suffix.size() && file.path.compare(file.path.size() - suffix.size(), suffix.size(), suffix) == 0) {
      return &file;
    }
  }
  return nullptr;
}

int runCommand(const std::string& command, std::string& output) {
  output.clear();
  FILE* pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) return -1;
  char buffer[4096];
  size_t got;
  while ((got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) output.append(buffer, got);
  const int status = pclose(pipe);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool haveProgram(const std::string& name) {
  std::string ignored;
  return runCommand("command -v '" + name + "'", ignored) == 0;
}

std::string gltfValidatorModules() {
  std::vector<std::string> candidates;
  if (const char* given = std::getenv("LUMERIC_NODE_MODULES")) candidates.push_back(given);
  // Where `npm ci` in tests/export (the test set-up) puts it.
  candidates.push_back(std::string(LUMERIC_SOURCE_DIR) + "/tests/export/node_modules");
  candidates.push_back(std::string(LUMERIC_SOURCE_DIR) + "/node_modules");
  struct stat status;
  for (const std::string& directory : candidates) {
    if (stat((directory + "/gltf-validator/package.json").c_str(), &status) == 0 && haveProgram("node")) {
      return directory;
    }
  }
  return "";
}

void holdWhole(ExportedFiles& files) {
  for (ExportedFile& file : files) {
    if (!file.stream) continue;
    file.bytes = contentOf(file);
    file.stream = nullptr;
  }
}

}  // namespace lumeric
