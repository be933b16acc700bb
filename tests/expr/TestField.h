// A field for expression tests: one value text, evaluated afresh whenever
// the expression language reads it, and a record of every call that tries
// to change it.
#ifndef LUMERIC_TESTS_EXPR_TESTFIELD_H
#define LUMERIC_TESTS_EXPR_TESTFIELD_H

#include <string>
#include <vector>

#include "scene/FieldExpression.h"
#include "scene/QvField.h"

namespace lumeric {

class TestField : public QvSingleField {
 public:
  explicit TestField(const char* text) { value.setText(text); }

  const char* getTypeName() const override { return "TestField"; }
  void setCapacity(int count, int growBy) override;
  void appendValue(Term* term, FieldExpression* where) override;
  // Records the call; a scalar for the whole field replaces the text.
  void SetLumericValue(Term* term, int i, int j, FieldExpression* where) override;
  // (-1, -1): the value; (i, -1): element i of a vector value; anything else
  // null.  A text that stores nothing (a statement) reads as 0.
  Term* GetLumericValue(int i, int j, FieldExpression* where) override;
  void attachNode(QvNode* node) override { value.attachOwner(node); }
  void write(SceneWriter&) override {}
  QvField* clone() override { return nullptr; }
  bool readValue(QvSceneInput*) override { return false; }
  void copyValueFrom(QvField*) override {}

  FieldExpression value;
  std::vector<std::string> calls;  // "set scalar 3 [1][-1]", "append ...", "capacity 10 5"
};

}  // namespace lumeric

#endif  // LUMERIC_TESTS_EXPR_TESTFIELD_H
