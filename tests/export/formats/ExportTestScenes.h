// Hand-built export scenes, the readers the tests use to look at what a
// writer wrote, and the independent tools they run.
#ifndef LUMERIC_TESTS_EXPORT_FORMATS_EXPORTTESTSCENES_H
#define LUMERIC_TESTS_EXPORT_FORMATS_EXPORTTESTSCENES_H

#include <array>
#include <string>
#include <vector>

#include "export/ExportFormat.h"
#include "export/ExportScene.h"

namespace lumeric {

// A cube of side 2 about the origin, 24 vertices with outward normals and
// texture coordinates, 12 triangles wound counter-clockwise seen from
// outside.
ExportPrimitive cubePrimitive(int material);
// A primitive of two segments or three points.
ExportPrimitive linePrimitive(int material);
ExportPrimitive pointPrimitive(int material);

Matrix4 translation(double x, double y, double z);
Matrix4 scaling(double x, double y, double z);
// A rotation of `angle` radians about the Z axis.
Matrix4 rotationZ(double angle);

// One mesh (the cube) placed by each matrix.
ExportScene cubesScene(const std::vector<Matrix4>& placements);

using Triangle = std::array<std::array<double, 3>, 3>;
// The signed volume enclosed by `triangles` (positive when they are wound
// counter-clockwise seen from outside).
double signedVolume(const std::vector<Triangle>& triangles);

// Reads every streamed content of `files` into its `bytes`, as the tests
// look at them.
void holdWhole(ExportedFiles& files);

// Triangles read back from a binary STL file's bytes; `ok` false when the
// size does not match its count.
std::vector<Triangle> readStl(const std::string& bytes, bool& ok);
// Triangles of the "f" lines of an OBJ text (positions only).
std::vector<Triangle> readObjFaces(const std::string& text);

// The file of `files` whose path ends with `suffix`, or null.
const ExportedFile* fileEndingWith(const ExportedFiles& files, const std::string& suffix);

// Runs a shell command; returns its exit status and its standard output
// and error together in `output`.
int runCommand(const std::string& command, std::string& output);
// Whether a program is on the PATH.
bool haveProgram(const std::string& name);
// The Khronos glTF validator's node_modules directory, or empty when it is
// not installed.
std::string gltfValidatorModules();

}  // namespace lumeric

#endif  // LUMERIC_TESTS_EXPORT_FORMATS_EXPORTTESTSCENES_H
