#include "nodes/NodeFactories.h"
#include "nodes/generators/QvBall.h"
#include "nodes/generators/QvConnect.h"
#include "nodes/generators/QvWall.h"
#include "scene/NodeClassTable.h"

namespace lumeric {

namespace {

const NodeClassEntry kGenerators[] = {
    classEntry<QvBall>(),
    classEntry<QvConnect>(),
    classEntry<QvWall>(),
};

}  // namespace

QvNode* createGeneratorNode(const char* className) {
  static const NodeClassIndex index(kGenerators);
  return index.create(className);
}

void collectGeneratorClassNames(std::vector<std::string>& names) { collectClassNames(kGenerators, names); }

}  // namespace lumeric
