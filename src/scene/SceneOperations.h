// Operations the scene and the reader need but that live in higher layers:
// the node and field factories and the evaluation of a VARNAME expression.
// The driver installs them (installSceneOperations) at the start of every
// entry point, so that these layers never include the node classes, the
// field types or the expression language.
#ifndef LUMERIC_SCENE_SCENEOPERATIONS_H
#define LUMERIC_SCENE_SCENEOPERATIONS_H

#include <string>
#include <vector>

namespace lumeric {

class FieldExpression;
class QvAtom;
class QvField;
class QvNode;

struct SceneOperations {
  // One of the standard VRML 1.0 classes, or null.
  QvNode* (*createStandardNode)(const char* className) = nullptr;
  // One of the extension node classes (PARAMETERS, LOOP, SELECT, Ball,
  // Connect, Wall), or null.
  QvNode* (*createExtensionNode)(const char* className) = nullptr;
  // The statement of a keyword (USE, SET, APPEND, DECLARE, OUTPUT_TO,
  // INCLUDE, PRECISION, PRINT), or null.
  QvNode* (*createStatement)(const char* keyword) = nullptr;
  // A new field of the named type (one of the 21 type names), or null.
  QvField* (*createField)(QvAtom typeName) = nullptr;
  // The text a name expression gives, or null when it gives no string
  // (the expression has reported why).
  const char* (*evaluateNameText)(FieldExpression* expression) = nullptr;
  // Appends the name of every node class (standard, then extension).
  void (*collectNodeClassNames)(std::vector<std::string>& names) = nullptr;
};

// The installed operations.  Every member is set before a scene is read.
const SceneOperations& sceneOperations();
void installSceneOperations(const SceneOperations& operations);

}  // namespace lumeric

#endif  // LUMERIC_SCENE_SCENEOPERATIONS_H
