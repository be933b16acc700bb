#include "nodes/NodeFactories.h"

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
#include "scene/NodeClassTable.h"
#include "nodes/QvGroup.h"

namespace lumeric {

namespace {

const NodeClassEntry kStandardClasses[] = {
    {"AsciiText", createNodeOf<QvAsciiText>},
    {"Cone", createNodeOf<QvCone>},
    {"Coordinate3", createNodeOf<QvCoordinate3>},
    {"Cube", createNodeOf<QvCube>},
    {"Cylinder", createNodeOf<QvCylinder>},
    {"DirectionalLight", createNodeOf<QvDirectionalLight>},
    {"FontStyle", createNodeOf<QvFontStyle>},
    {"Group", createNodeOf<QvGroup>},
    {"IndexedFaceSet", createNodeOf<QvIndexedFaceSet>},
    {"IndexedLineSet", createNodeOf<QvIndexedLineSet>},
    {"Info", createNodeOf<QvInfo>},
    {"LOD", createNodeOf<QvLOD>},
    {"Material", createNodeOf<QvMaterial>},
    {"MaterialBinding", createNodeOf<QvMaterialBinding>},
    {"MatrixTransform", createNodeOf<QvMatrixTransform>},
    {"Normal", createNodeOf<QvNormal>},
    {"NormalBinding", createNodeOf<QvNormalBinding>},
    {"OrthographicCamera", createNodeOf<QvOrthographicCamera>},
    {"PerspectiveCamera", createNodeOf<QvPerspectiveCamera>},
    {"PointLight", createNodeOf<QvPointLight>},
    {"PointSet", createNodeOf<QvPointSet>},
    {"Rotation", createNodeOf<QvRotation>},
    {"Scale", createNodeOf<QvScale>},
    {"Separator", createNodeOf<QvSeparator>},
    {"ShapeHints", createNodeOf<QvShapeHints>},
    {"Sphere", createNodeOf<QvSphere>},
    {"SpotLight", createNodeOf<QvSpotLight>},
    {"Switch", createNodeOf<QvSwitch>},
    {"Texture2", createNodeOf<QvTexture2>},
    {"Texture2Transform", createNodeOf<QvTexture2Transform>},
    {"TextureCoordinate2", createNodeOf<QvTextureCoordinate2>},
    {"Transform", createNodeOf<QvTransform>},
    {"TransformSeparator", createNodeOf<QvTransformSeparator>},
    {"Translation", createNodeOf<QvTranslation>},
    {"WWWAnchor", createNodeOf<QvWWWAnchor>},
    {"WWWInline", createNodeOf<QvWWWInline>},
};

}  // namespace

QvNode* createStandardNode(const char* className) { return createFromTable(kStandardClasses, className); }

}  // namespace lumeric
