#include "export/ExportScene.h"

namespace lumeric {

bool ExportMaterial::operator==(const ExportMaterial& other) const {
  return name == other.name && diffuse == other.diffuse && ambient == other.ambient && specular == other.specular &&
         emissive == other.emissive && shininess == other.shininess && transparency == other.transparency &&
         texture == other.texture && textureTransform == other.textureTransform && doubleSided == other.doubleSided &&
         unlit == other.unlit;
}

}  // namespace lumeric
