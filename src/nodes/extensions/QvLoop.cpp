#include "nodes/extensions/QvLoop.h"

#include <cstring>

#include "core/MessageDetails.h"
#include "scene/CopyBudget.h"
#include "expr/Term.h"
#include "nodes/extensions/QvParameters.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/QvField.h"
#include "scene/SceneMessages.h"

namespace lumeric {

void QvLoop::evaluateBoundFields(NumberValue (&values)[3], QvField*& position) {
  // Evaluated in declaration order, the first field of each name counting,
  // so that the fields' own messages come in the order of the file.
  static const char* const kNames[3] = {"start", "end", "step"};
  bool seen[3] = {false, false, false};
  for (int i = 0; i < declaredFields.getNumFields(); ++i) {
    QvAtom fieldName = declaredFields.getFieldName(i);
    if (fieldName.named("position") && position == nullptr) position = declaredFields.getField(this, i);
    for (int k = 0; k < 3; ++k) {
      if (!fieldName.named(kNames[k]) || seen[k]) continue;
      seen[k] = true;
      values[k] = declaredNumberOf(declaredFields.getField(this, i));
    }
  }
}

bool QvLoop::readBounds(Bounds& bounds) {
  NumberValue values[3];
  evaluateBoundFields(values, bounds.position);
  // start, end and step are each one number.  A field whose value is
  // anything else (declared SFVec3f, SFString, a list) is not a legal
  // value: start and end post their message, step a message of its own,
  // and nothing is repeated.
  bool startOk = values[0].state == NumberState::kNumber;
  bool endOk = values[1].state == NumberState::kNumber;
  if (!startOk) reportAtNode(this, "\"start\" field not defined or was not given a legal value");
  if (!endOk) reportAtNode(this, "\"end\" field not defined or was not given a legal value");
  if (bounds.position == nullptr) reportAtNode(this, "\"position\" field not defined or was not given a legal value");
  if (!startOk || !endOk || bounds.position == nullptr) return false;
  if (values[2].state == NumberState::kNotNumber) return reportAtNode(this, "\"step\" field was not given a legal value");
  bounds.start = values[0].value;
  bounds.end = values[1].value;
  if (values[2].state == NumberState::kNumber) bounds.step = values[2].value;
  // A step of 0 or less would never reach the end: refuse it instead of
  // repeating forever.
  if (bounds.start < bounds.end && !(bounds.step > 0)) {
    return reportAtNode(this, "\"step\" field must be greater than 0 when \"start\" is below \"end\"");
  }
  return true;
}

int QvLoop::insertionIndex(QvGroupNode* target) {
  // The node of `target` that holds this LOOP: the LOOP itself, or an
  // INCLUDE whose included root it is.  When the LOOP is being copied it
  // stands in no such place: its repetitions then follow the copies of
  // its earlier siblings, at the end of `target`, in document order.
  QvNode* place = this;
  while (place->parent != nullptr && place->parent != target) place = place->parent;
  int index = place->parent == target ? target->indexOfChild(place) : -1;
  if (index < 0) return -1;
  return index + 1 < target->getNumChildren() ? index + 1 : -1;
}

void QvLoop::repeat(const Bounds& bounds, QvGroupNode* target) {
  RepetitionsOf repetitions(this);
  int index = insertionIndex(target);
  ScalarTerm* variable = ScalarTerm::make(bounds.start);
  // The containers are gathered and put into `target` at once: inserting
  // each into the middle of the list would move the later siblings once
  // per repetition.  Nothing reads `target`'s list while they are made:
  // every copy goes into its own container.
  QvNodeList made;
  for (double x = bounds.start; x < bounds.end;) {
    if (!admitCopy(this)) break;
    QvParameters* container = new QvParameters();
    made.append(container);
    variable->value = x;
    bounds.position->SetLumericValue(variable, -1, -1, nullptr);
    for (int i = 0; i < templateChildCount; ++i) {
      QvNode* child = children.get(i);
      if (child != nullptr) child->copyInto(container);
    }
    double next = x + bounds.step;
    if (!(next > x)) {
      // A step far below the variable's magnitude adds nothing in double
      // arithmetic; the loop would never end.
      reportAtNode(this, "\"step\" field is too small to advance \"position\" beyond %g", x);
      break;
    }
    x = next;
  }
  target->insertChildren(made, index);
}

void QvLoop::evaluate(QvGroupNode* parentGroup, bool) {
  NodeVisit visit(this);
  Bounds bounds;
  if (!readBounds(bounds)) return;
  templateChildCount = getNumChildren();
  // A LOOP at the root of the scene has no parent to receive its
  // repetitions: they go into its own child list after the template
  // children, where write() finds them, and are evaluated here since no
  // enclosing group will visit them.
  QvGroupNode* target = parentGroup != nullptr ? parentGroup : this;
  repeat(bounds, target);
  if (target != this) return;
  for (int i = templateChildCount; i < getNumChildren(); ++i) children.get(i)->evaluateInPlace();
}

bool QvLoop::readInstance(QvSceneInput* in) { return readGroupBody(in, this); }

void QvLoop::write(SceneWriter& out) {
  NodeVisit visit(this);
  writeChildren(out, templateChildCount);
}

}  // namespace lumeric
