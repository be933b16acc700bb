// LOOP: repeats its children.  For each value of its loop variable, from
// start up to (not including) end in steps of step, it sets its position
// field and adds to its parent, right after itself, a PARAMETERS container
// holding copies of its children evaluated with the values of that moment.
// The LOOP writes only what was added to its own child list beyond its
// template children (normally nothing), so the repetitions stand in the
// output at its place.
#ifndef LUMERIC_NODES_EXTENSIONS_QVLOOP_H
#define LUMERIC_NODES_EXTENSIONS_QVLOOP_H

#include <cstdint>

#include "nodes/extensions/DeclaredNumber.h"
#include "scene/QvDeclaredFieldsNode.h"

namespace lumeric {

class QvLoop : public QvDeclaredFieldsNode {
 public:
  QvLoop() = default;

  static constexpr const char* kClassName = "LOOP";
  const char* getClassName() const override { return kClassName; }
  // Makes the repetitions; `copy` does not change what is made, only where
  // it goes (see the .cpp).  Messages go to the LOOP's file and line.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  // The children from templateChildCount on.
  void write(SceneWriter& out) override;
  // The body of a group with a fields specification.
  bool readInstance(QvSceneInput* in) override;

  // The number of children the LOOP had when it last made repetitions.
  int32_t templateChildCount = 0;

 private:
  struct Bounds {
    double start = 0;
    double end = 0;
    double step = 1.0;
    QvField* position = nullptr;
  };
  // Reads start, end, step and position; posts what is missing or wrong
  // and returns false then.
  bool readBounds(Bounds& bounds);
  // The values of start, end and step (in that order) and the position
  // field, as declared.
  void evaluateBoundFields(NumberValue (&values)[3], QvField*& position);
  // Where the repetitions go in `target`: right after the LOOP's own place
  // there, or at the end when the LOOP stands elsewhere.
  int insertionIndex(QvGroupNode* target);
  void repeat(const Bounds& bounds, QvGroupNode* target);
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_EXTENSIONS_QVLOOP_H
