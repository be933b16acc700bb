#include "driver/LibrarySetUp.h"

#include "core/RunState.h"
#include "expr/Evaluation.h"
#include "expr/NestedParse.h"
#include "expr/Term.h"
#include "fields/FieldFactory.h"
#include "nodes/NodeFactories.h"
#include "scene/NodeVisit.h"
#include "scene/NodeClass.h"
#include "scene/SceneOperations.h"

namespace lumeric {

namespace {

const char* nameTextOf(FieldExpression* expression) {
  StringTerm* name = evaluateName(expression);
  return name != nullptr ? name->text : nullptr;
}

void clearNodeStack() { theNodeStack.clear(); }

}  // namespace

void installLibraryOperations() {
  SceneOperations operations;
  operations.createStandardNode = createStandardNode;
  operations.createExtensionNode = createExtensionNode;
  operations.createStatement = createStatement;
  operations.createField = createField;
  operations.evaluateNameText = nameTextOf;
  operations.collectNodeClassNames = collectNodeClassNames;
  installSceneOperations(operations);
  theRun.atEndOfRun(NodeClass::destroyAllTables);
  theRun.atEndOfRun(freeAllTerms);
  theRun.atEndOfRun(clearNodeStack);
  theRun.atEndOfRun(NestedParse::endRun);
}

}  // namespace lumeric
