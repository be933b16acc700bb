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
    {"USE", createNodeOf<QvUseStatement>},
    {"SET", createNodeOf<QvSetStatement>},
    {"APPEND", createNodeOf<QvAppendStatement>},
    {"DECLARE", createNodeOf<QvDeclareStatement>},
    {"OUTPUT_TO", createNodeOf<QvOutputToStatement>},
    {"INCLUDE", createNodeOf<QvInclude>},
    {"PRECISION", createNodeOf<QvPrecisionStatement>},
    {"PRINT", createNodeOf<QvPrintStatement>},
};

// Ball, Connect and Wall join here.
const NodeClassEntry kExtensionNodes[] = {
    {"PARAMETERS", createNodeOf<QvParameters>},
    {"LOOP", createNodeOf<QvLoop>},
    {"SELECT", createNodeOf<QvSelect>},
};

}  // namespace

QvNode* createExtensionNode(const char* className) { return createFromTable(kExtensionNodes, className); }

QvNode* createStatement(const char* keyword) { return createFromTable(kStatements, keyword); }

}  // namespace lumeric
