// The one compilation of tinygltf's implementation.
#define TINYGLTF_IMPLEMENTATION
#include "export/formats/TinyGltf.h"
