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
    classEntry<QvAsciiText>(),
    classEntry<QvCone>(),
    classEntry<QvCoordinate3>(),
    classEntry<QvCube>(),
    classEntry<QvCylinder>(),
    classEntry<QvDirectionalLight>(),
    classEntry<QvFontStyle>(),
    classEntry<QvGroup>(),
    classEntry<QvIndexedFaceSet>(),
    classEntry<QvIndexedLineSet>(),
    classEntry<QvInfo>(),
    classEntry<QvLOD>(),
    classEntry<QvMaterial>(),
    classEntry<QvMaterialBinding>(),
    classEntry<QvMatrixTransform>(),
    classEntry<QvNormal>(),
    classEntry<QvNormalBinding>(),
    classEntry<QvOrthographicCamera>(),
    classEntry<QvPerspectiveCamera>(),
    classEntry<QvPointLight>(),
    classEntry<QvPointSet>(),
    classEntry<QvRotation>(),
    classEntry<QvScale>(),
    classEntry<QvSeparator>(),
    classEntry<QvShapeHints>(),
    classEntry<QvSphere>(),
    classEntry<QvSpotLight>(),
    classEntry<QvSwitch>(),
    classEntry<QvTexture2>(),
    classEntry<QvTexture2Transform>(),
    classEntry<QvTextureCoordinate2>(),
    classEntry<QvTransform>(),
    classEntry<QvTransformSeparator>(),
    classEntry<QvTranslation>(),
    classEntry<QvWWWAnchor>(),
    classEntry<QvWWWInline>(),
};

}  // namespace

QvNode* createStandardNode(const char* className) {
  static const NodeClassIndex index(kStandardClasses);
  return index.create(className);
}

void collectNodeClassNames(std::vector<std::string>& names) {
  collectClassNames(kStandardClasses, names);
  collectExtensionClassNames(names);
}

}  // namespace lumeric
