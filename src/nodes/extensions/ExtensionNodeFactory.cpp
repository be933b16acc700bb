#include <cstring>

#include "nodes/extensions/QvAssignmentStatement.h"
#include "nodes/extensions/QvOutputToStatement.h"
#include "nodes/extensions/QvPrecisionStatement.h"
#include "nodes/extensions/QvPrintStatement.h"
#include "nodes/extensions/QvUseStatement.h"
#include "reader/NodeFactory.h"
#include "reader/QvInclude.h"

namespace lumeric {

namespace {

template <class Node>
QvNode* make() {
  return new Node();
}

struct NamedClass {
  const char* name;
  QvNode* (*create)();
};

const NamedClass kStatements[] = {
    {"USE", make<QvUseStatement>},
    {"SET", make<QvSetStatement>},
    {"APPEND", make<QvAppendStatement>},
    {"DECLARE", make<QvDeclareStatement>},
    {"OUTPUT_TO", make<QvOutputToStatement>},
    {"INCLUDE", make<QvInclude>},
    {"PRECISION", make<QvPrecisionStatement>},
    {"PRINT", make<QvPrintStatement>},
};

}  // namespace

QvNode* createExtensionNode(const char*) {
  // PARAMETERS, LOOP, SELECT, Ball, Connect and Wall join here.
  return nullptr;
}

QvNode* createStatement(const char* keyword) {
  for (const NamedClass& entry : kStatements) {
    if (std::strcmp(entry.name, keyword) == 0) return entry.create();
  }
  return nullptr;
}

}  // namespace lumeric
