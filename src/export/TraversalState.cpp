#include "export/TraversalState.h"

#include <algorithm>
#include <cstring>

namespace lumeric {

int MaterialValues::count() const {
  size_t n = std::max({ambient.size(), diffuse.size(), specular.size(), emissive.size(), shininess.size(),
                       transparency.size(), size_t{1}});
  return static_cast<int>(n);
}

namespace {

template <class T>
void append(std::string& key, const T& value) {
  key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

}  // namespace

std::string TraversalState::shapeKey() const {
  std::string key;
  append(key, material.get());
  append(key, coordinates.get());
  append(key, normals.get());
  append(key, textureCoordinates.get());
  const int values[] = {materialBinding, normalBinding, normalsGiven,  textureCoordinatesGiven,
                        vertexOrdering,  shapeType,     faceType,      texture};
  append(key, values);
  append(key, creaseAngle);
  append(key, textureTransform);
  append(key, complexity);
  return key;
}

}  // namespace lumeric
