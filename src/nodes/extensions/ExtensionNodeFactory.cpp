#include "nodes/extensions/QvAssignmentStatement.h"
#include "nodes/extensions/QvOutputToStatement.h"
#include "nodes/extensions/QvPrecisionStatement.h"
#include "nodes/extensions/QvPrintStatement.h"
#include "nodes/extensions/QvUseStatement.h"
#include "scene/NodeClassTable.h"
#include "nodes/NodeFactories.h"
#include "nodes/extensions/QvInclude.h"

namespace lumeric {

namespace {

const NodeClassEntry kStatements[] = {
    {"USE", createNodeOf<QvUseStatement>},
    {"SET", createNodeOf<QvSetStatement>},
    {"APPEND", createNodeOf<QvAppendStatement>},
    {"DECLARE", createNodeOf<QvDeclareStatement>},
    {"OUTPUT_TO", createNodeOf<QvOutputToStatement>},
    {"INCLUDE", createNodeOf<QvInclude>},
    {"PRECISION", createNodeOf<QvPrecisionStatement>},
    {"PRINT", createNodeOf<QvPrintStatement>},
};

}  // namespace

QvNode* createExtensionNode(const char*) {
  // PARAMETERS, LOOP, SELECT, Ball, Connect and Wall join here.
  return nullptr;
}

QvNode* createStatement(const char* keyword) { return createFromTable(kStatements, keyword); }

}  // namespace lumeric
