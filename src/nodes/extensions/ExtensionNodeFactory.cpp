#include "nodes/NodeFactories.h"
#include "nodes/extensions/QvAssignmentStatement.h"
#include "nodes/extensions/QvInclude.h"
#include "nodes/extensions/QvLoop.h"
#include "nodes/extensions/QvOutputToStatement.h"
#include "nodes/extensions/QvParameters.h"
#include "nodes/extensions/QvPrecisionStatement.h"
#include "nodes/extensions/QvPrintStatement.h"
#include "nodes/extensions/QvSelect.h"
#include "nodes/extensions/QvUseStatement.h"
#include "scene/NodeClassTable.h"

namespace lumeric {

namespace {

const NodeClassEntry kStatements[] = {
    classEntry<QvUseStatement>(),
    classEntry<QvSetStatement>(),
    classEntry<QvAppendStatement>(),
    classEntry<QvDeclareStatement>(),
    classEntry<QvOutputToStatement>(),
    classEntry<QvInclude>(),
    classEntry<QvPrecisionStatement>(),
    classEntry<QvPrintStatement>(),
};

const NodeClassEntry kExtensionNodes[] = {
    classEntry<QvParameters>(),
    classEntry<QvLoop>(),
    classEntry<QvSelect>(),
};

}  // namespace

QvNode* createExtensionNode(const char* className) {
  static const NodeClassIndex index(kExtensionNodes);
  if (QvNode* node = index.create(className)) return node;
  return createGeneratorNode(className);
}

QvNode* createStatement(const char* keyword) {
  static const NodeClassIndex index(kStatements);
  return index.create(keyword);
}

void collectExtensionClassNames(std::vector<std::string>& names) {
  collectClassNames(kExtensionNodes, names);
  collectGeneratorClassNames(names);
}

}  // namespace lumeric
