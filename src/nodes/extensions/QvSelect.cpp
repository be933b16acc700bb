#include "nodes/extensions/QvSelect.h"

#include <climits>
#include <cmath>

#include "nodes/extensions/DeclaredNumber.h"
#include "reader/NodeReader.h"
#include "scene/NodeVisit.h"
#include "scene/SceneMessages.h"

namespace lumeric {

bool QvSelect::readChoice(double& value) {
  NumberValue choice = declaredNumberOf(findDeclaredField("whichChild"));
  // A value that is not a finite number cannot be reduced to a child.
  if (choice.state != NumberState::kNumber || !std::isfinite(choice.value)) {
    return reportAtNode(this, "\"whichChild\" field not defined");
  }
  value = choice.value;
  return true;
}

QvSelect::Choice QvSelect::choose(double reduced, int& index) {
  // Truncated toward zero; magnitudes beyond an int are illegal anyway and
  // are reported at the nearest int.
  double whole = std::trunc(reduced);
  int i = whole <= INT_MIN ? INT_MIN : whole >= INT_MAX ? INT_MAX : static_cast<int>(whole);
  if (i == -3) return Choice::kAll;
  if (i == -1) return Choice::kNone;
  if (i >= 0 && i < getNumChildren()) {
    index = i;
    return Choice::kIndex;
  }
  reportAtNode(this, "Illegal value of \"whichChild\" = %d", i);
  return Choice::kNone;
}

void QvSelect::evaluate(QvGroupNode* parentGroup, bool copy) {
  NodeVisit visit(this);
  if (!copy) return evaluateChildren(this, false);
  double value = 0;
  if (!readChoice(value)) return;
  int n = getNumChildren();
  if (n == 0) return;
  // Copying reduces whole values of 0 or more modulo the child count and
  // takes negative ones as they are.
  double whole = std::trunc(value);
  int index = 0;
  switch (choose(whole >= 0 ? std::fmod(whole, n) : whole, index)) {
    case Choice::kAll:
      return evaluateChildren(parentGroup, true);
    case Choice::kIndex:
      return children.get(index)->copyInto(parentGroup);
    case Choice::kNone:
      return;
  }
}

bool QvSelect::readInstance(QvSceneInput* in) { return readGroupBody(in, this); }

void QvSelect::write(SceneWriter& out) {
  NodeVisit visit(this);
  double value = 0;
  if (!readChoice(value)) return;
  int n = getNumChildren();
  if (n == 0) return;
  // Writing takes the remainder with the sign of the value, so negative
  // values whose magnitude reaches n choose differently than when copying.
  int index = 0;
  switch (choose(std::fmod(value, n), index)) {
    case Choice::kAll:
      return writeChildren(out);
    case Choice::kIndex:
      return children.get(index)->write(out);
    case Choice::kNone:
      return;
  }
}

}  // namespace lumeric
