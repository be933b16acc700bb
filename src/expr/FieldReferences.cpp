#include "expr/FieldReferences.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "core/RunState.h"
#include "core/QvContext.h"
#include "expr/Term.h"
#include "expr/TermArena.h"
#include "expr/TermConversions.h"
#include "scene/FieldExpression.h"
#include "scene/FieldNameCandidates.h"
#include "scene/QvField.h"
#include "scene/QvFieldTable.h"
#include "scene/NodeVisit.h"
#include "scene/QvNode.h"
#include "scene/DefTable.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

// The indices written after a reference; -1 where none was written.
struct Selection {
  int count = 0;
  int i = -1;
  int j = -1;
};

bool selectionFrom(Term* first, Term* second, Selection* selection, FieldExpression* at) {
  if ((first != nullptr && !indexFromTerm(first, &selection->i)) ||
      (second != nullptr && !indexFromTerm(second, &selection->j))) {
    return reportAtExpression(at, "Cannot use a term as an index");
  }
  selection->count = first == nullptr ? 0 : (second == nullptr ? 1 : 2);
  return true;
}

// The field refused the selection.  Without indices the message says the
// field is not defined, except for a field of the owner itself.
void reportUnusable(FieldExpression* at, const char* label, const Selection& selection, bool plainIsDefined) {
  switch (selection.count) {
    case 0:
      reportAtExpression(at, plainIsDefined ? "%s is not defined" : "%s is not a valid element", label);
      break;
    case 1:
      reportAtExpression(at, "%s[%d] is not a valid element", label, selection.i);
      break;
    default:
      reportAtExpression(at, "%s[%d][%d] is not a valid element", label, selection.i, selection.j);
      break;
  }
}

// `value` alone, the terms made since `mark` released.  A reference that
// reads one element of a large list evaluates the list whole; the list
// goes as soon as the element is read, not at the end of the run.
Term* keepOnly(Term* value, const TermArena::Mark& mark) {
  TermArena& arena = termArena();
  if (value == nullptr || !arena.grewPast(mark)) return value;
  if (StringTerm* string = asString(value)) {
    if (string->text == nullptr) return value;
    const std::string text(string->text);
    arena.release(mark);
    return StringTerm::make(text.c_str(), text.size());
  }
  if (ScalarTerm* scalar = asScalar(value)) {
    const double number = scalar->value;
    arena.release(mark);
    return ScalarTerm::make(number);
  }
  if (VectorTerm* vector = asVector(value)) {
    const std::vector<double> elements(vector->elements, vector->elements + std::max(vector->length, 0));
    const int32_t length = vector->length;
    arena.release(mark);
    VectorTerm* copy = VectorTerm::make(length);
    std::copy(elements.begin(), elements.end(), copy->elements);
    return copy;
  }
  return value;  // a matrix: a row of a list of rows is a vector
}

// Where the reference looked, for the hint of "Field X not found": the
// fields of `node` and, with `inScope`, those of the enclosing nodes.
struct Searched {
  const char* name;
  QvNode* node;
  bool inScope;
};

Term* valueOf(QvField* field, const char* label, const Selection& selection, bool plainIsDefined,
              FieldExpression* at, const Searched& searched) {
  if (field == nullptr) {
    const FieldNameCandidates meant(NameCandidates::kFieldInScope, searched.name, searched.node, searched.inScope);
    OfferedCandidates offered(meant);
    return reportAtExpression(at, "Field %s not found", label);
  }
  const TermArena::Mark mark = termArena().mark();
  Term* value = field->GetLumericValue(selection.i, selection.j, at);
  if (value == nullptr) {
    reportUnusable(at, label, selection, plainIsDefined);
    return nullptr;
  }
  return selection.count > 0 ? keepOnly(value, mark) : value;
}

}  // namespace

QvField* findLocalField(QvNode* node, QvAtom name) {
  if (node == nullptr) return nullptr;
  QvFieldTable* table = node->getFieldTable();
  return table != nullptr ? table->findField(node, name) : nullptr;
}

QvField* findFieldInScope(QvAtom name) {
  for (QvNode* node = theNodeStack.top(); node != nullptr; node = node->parent) {
    if (QvField* field = findLocalField(node, name)) return field;
  }
  return nullptr;
}

QvNode* findNamedNode(const char* nodeName) {
  return theRun.defNames != nullptr ? theRun.defNames->findName(QvAtom(nodeName)) : nullptr;
}

QvField* findNodeField(const char* nodeName, const char* fieldName) {
  return findLocalField(findNamedNode(nodeName), QvAtom(fieldName));
}

Term* referToField(const char* name, Term* first, Term* second, FieldExpression* at) {
  Selection selection;
  if (!selectionFrom(first, second, &selection, at)) return nullptr;
  const QvAtom atom(name);
  QvField* field = findLocalField(at != nullptr ? at->owner : nullptr, atom);
  const bool inScope = field == nullptr;
  if (inScope) field = findFieldInScope(atom);
  return valueOf(field, name, selection, inScope, at, {name, at != nullptr ? at->owner : nullptr, true});
}

Term* referToFieldInScope(const char* name, Term* first, Term* second, FieldExpression* at) {
  Selection selection;
  if (!selectionFrom(first, second, &selection, at)) return nullptr;
  return valueOf(findFieldInScope(QvAtom(name)), name, selection, true, at, {name, nullptr, true});
}

Term* referToNodeField(const char* nodeName, const char* fieldName, Term* first, Term* second,
                       FieldExpression* at) {
  Selection selection;
  if (!selectionFrom(first, second, &selection, at)) return nullptr;
  char label[QvContext::kMessageLimit + 1];
  std::snprintf(label, sizeof label, "%s:%s", nodeName, fieldName);
  QvNode* node = findNamedNode(nodeName);
  return valueOf(findLocalField(node, QvAtom(fieldName)), label, selection, true, at, {fieldName, node, false});
}

Term* localFieldValue(QvNode* node, const char* name, FieldExpression* at) {
  QvField* field = findLocalField(node, QvAtom(name));
  if (field == nullptr) {
    const FieldNameCandidates meant(NameCandidates::kFieldInScope, name, node);
    OfferedCandidates offered(meant);
    return reportAtExpression(at, "Local Field %s not found", name);
  }
  Term* value = field->GetLumericValue(-1, -1, at);
  if (value == nullptr) reportAtExpression(at, "%s is not a valid element", name);
  return value;
}

}  // namespace lumeric
