#include "scene/SceneOperations.h"

namespace lumeric {

namespace {

SceneOperations installed;

}  // namespace

const SceneOperations& sceneOperations() { return installed; }

void installSceneOperations(const SceneOperations& operations) { installed = operations; }

}  // namespace lumeric
