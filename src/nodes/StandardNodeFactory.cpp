#include "reader/NodeFactory.h"

#include <cstring>

#include "nodes/QvAsciiText.h"
#include "nodes/QvCone.h"
#include "nodes/QvCoordinate3.h"
#include "nodes/QvCube.h"
#include "nodes/QvCylinder.h"
#include "nodes/QvDirectionalLight.h"
#include "nodes/QvFontStyle.h"
#include "nodes/QvIndexedFaceSet.h"
#include "nodes/QvIndexedLineSet.h"
#include "nodes/QvInfo.h"
#include "nodes/QvLOD.h"
#include "nodes/QvMaterial.h"
#include "nodes/QvMaterialBinding.h"
#include "nodes/QvMatrixTransform.h"
#include "nodes/QvNormal.h"
#include "nodes/QvNormalBinding.h"
#include "nodes/QvOrthographicCamera.h"
#include "nodes/QvPerspectiveCamera.h"
#include "nodes/QvPointLight.h"
#include "nodes/QvPointSet.h"
#include "nodes/QvRotation.h"
#include "nodes/QvScale.h"
#include "nodes/QvSeparator.h"
#include "nodes/QvShapeHints.h"
#include "nodes/QvSphere.h"
#include "nodes/QvSpotLight.h"
#include "nodes/QvSwitch.h"
#include "nodes/QvTexture2.h"
#include "nodes/QvTexture2Transform.h"
#include "nodes/QvTextureCoordinate2.h"
#include "nodes/QvTransform.h"
#include "nodes/QvTransformSeparator.h"
#include "nodes/QvTranslation.h"
#include "nodes/QvWWWAnchor.h"
#include "nodes/QvWWWInline.h"
#include "nodes/QvGroup.h"

namespace lumeric {

namespace {

template <class Node>
QvNode* make() {
  return new Node();
}

struct StandardClass {
  const char* name;
  QvNode* (*create)();
};

const StandardClass kStandardClasses[] = {
    {"AsciiText", make<QvAsciiText>},
    {"Cone", make<QvCone>},
    {"Coordinate3", make<QvCoordinate3>},
    {"Cube", make<QvCube>},
    {"Cylinder", make<QvCylinder>},
    {"DirectionalLight", make<QvDirectionalLight>},
    {"FontStyle", make<QvFontStyle>},
    {"Group", make<QvGroup>},
    {"IndexedFaceSet", make<QvIndexedFaceSet>},
    {"IndexedLineSet", make<QvIndexedLineSet>},
    {"Info", make<QvInfo>},
    {"LOD", make<QvLOD>},
    {"Material", make<QvMaterial>},
    {"MaterialBinding", make<QvMaterialBinding>},
    {"MatrixTransform", make<QvMatrixTransform>},
    {"Normal", make<QvNormal>},
    {"NormalBinding", make<QvNormalBinding>},
    {"OrthographicCamera", make<QvOrthographicCamera>},
    {"PerspectiveCamera", make<QvPerspectiveCamera>},
    {"PointLight", make<QvPointLight>},
    {"PointSet", make<QvPointSet>},
    {"Rotation", make<QvRotation>},
    {"Scale", make<QvScale>},
    {"Separator", make<QvSeparator>},
    {"ShapeHints", make<QvShapeHints>},
    {"Sphere", make<QvSphere>},
    {"SpotLight", make<QvSpotLight>},
    {"Switch", make<QvSwitch>},
    {"Texture2", make<QvTexture2>},
    {"Texture2Transform", make<QvTexture2Transform>},
    {"TextureCoordinate2", make<QvTextureCoordinate2>},
    {"Transform", make<QvTransform>},
    {"TransformSeparator", make<QvTransformSeparator>},
    {"Translation", make<QvTranslation>},
    {"WWWAnchor", make<QvWWWAnchor>},
    {"WWWInline", make<QvWWWInline>},
};

}  // namespace

QvNode* createStandardNode(const char* className) {
  for (const StandardClass& entry : kStandardClasses) {
    if (std::strcmp(entry.name, className) == 0) return entry.create();
  }
  return nullptr;
}

}  // namespace lumeric
