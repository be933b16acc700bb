// The node factories: node classes by name, installed at start-up as the
// scene's operations (scene/SceneOperations.h).
#ifndef LUMERIC_NODES_NODEFACTORIES_H
#define LUMERIC_NODES_NODEFACTORIES_H

#include <string>
#include <vector>

namespace lumeric {

class QvNode;

// One of the standard VRML 1.0 classes, or null.
QvNode* createStandardNode(const char* className);
// One of the extension node classes (PARAMETERS, LOOP, SELECT, and the
// generators), or null.
QvNode* createExtensionNode(const char* className);
// One of the geometry generators (Ball, Connect, Wall), or null
// (nodes/generators/GeneratorFactory.cpp).
QvNode* createGeneratorNode(const char* className);
// The statement of a keyword (USE, SET, APPEND, DECLARE, OUTPUT_TO,
// INCLUDE, PRECISION, PRINT), or null.
QvNode* createStatement(const char* keyword);
// Appends the names of the extension classes, the generators among them.
void collectExtensionClassNames(std::vector<std::string>& names);
// Appends the names of the generators.
void collectGeneratorClassNames(std::vector<std::string>& names);
// Appends the names of the standard classes, then of the extension classes.
void collectNodeClassNames(std::vector<std::string>& names);

}  // namespace lumeric

#endif  // LUMERIC_NODES_NODEFACTORIES_H
