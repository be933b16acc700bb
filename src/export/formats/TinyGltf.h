// tinygltf as the exporter uses it: with the system's nlohmann-json and
// without its image codecs (images are written as the scene holds them,
// already encoded).  Every file includes tinygltf through this header, so
// that all see the same definitions.
#ifndef LUMERIC_EXPORT_FORMATS_TINYGLTF_H
#define LUMERIC_EXPORT_FORMATS_TINYGLTF_H

#define TINYGLTF_NO_STB_IMAGE
#define TINYGLTF_NO_STB_IMAGE_WRITE
#define TINYGLTF_NO_EXTERNAL_IMAGE
#include <tiny_gltf.h>

#endif  // LUMERIC_EXPORT_FORMATS_TINYGLTF_H
