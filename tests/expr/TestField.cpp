#include "expr/TestField.h"

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionFixture.h"

namespace lumeric {

void TestField::setCapacity(int count, int growBy) {
  calls.push_back("capacity " + std::to_string(count) + " " + std::to_string(growBy));
}

void TestField::appendValue(Term* term, FieldExpression*) { calls.push_back("append " + describeTerm(term)); }

void TestField::SetLumericValue(Term* term, int i, int j, FieldExpression*) {
  calls.push_back("set " + describeTerm(term) + " [" + std::to_string(i) + "][" + std::to_string(j) + "]");
  if (ScalarTerm* s = asScalar(term); s != nullptr && i == -1) value.setNumber(s->value);
}

Term* TestField::GetLumericValue(int i, int j, FieldExpression*) {
  Term* term = evaluateTerm(&value);
  if (term == nullptr && theContext.parseStatus == 0) term = ScalarTerm::make(0);
  if (i == -1 && j == -1) return term;
  VectorTerm* vector = asVector(term);
  if (j != -1 || vector == nullptr || i < 0 || i >= vector->length) return nullptr;
  return ScalarTerm::make(vector->elements[i]);
}

}  // namespace lumeric
