#include "expr/TermOperators.h"

#include <cmath>

#include "core/QvContext.h"
#include "expr/TermKernels.h"
#include "scene/SceneMessages.h"

namespace lumeric {

namespace {

Term* fail(FieldExpression* at, const char* message) {
  return reportAtExpression(at, "%s", message);
}

// Division and remainder by zero are reported but do not fail.
Term* dividedByZero(FieldExpression* at) {
  reportAtExpression(at, "Attempt to divide by 0.0");
  return ScalarTerm::make(0.0);
}

Term* truthOf(bool value) { return ScalarTerm::make(value ? 1.0 : 0.0); }

}  // namespace

Term* addTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls != nullptr && rs != nullptr) return ScalarTerm::make(ls->value + rs->value);
  if (asVector(left) != nullptr && asVector(right) != nullptr) return addVectors(asVector(left), asVector(right), at);
  if (ls != nullptr && asVector(right) != nullptr) return addScalarToVector(ls->value, asVector(right), at);
  if (asVector(left) != nullptr && rs != nullptr) return addScalarToVector(rs->value, asVector(left), at);
  if (asMatrix(left) != nullptr && asMatrix(right) != nullptr) {
    return addMatrices(asMatrix(left), asMatrix(right), at);
  }
  if (ls != nullptr && asMatrix(right) != nullptr) return addScalarToMatrix(ls->value, asMatrix(right), at);
  if (asMatrix(left) != nullptr && rs != nullptr) return addScalarToMatrix(rs->value, asMatrix(left), at);
  return fail(at, "Cannot add terms");
}

Term* subtractTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls != nullptr && rs != nullptr) return ScalarTerm::make(ls->value - rs->value);
  if (asVector(left) != nullptr && asVector(right) != nullptr) {
    return subtractVectors(asVector(left), asVector(right), at);
  }
  if (ls != nullptr && asVector(right) != nullptr) {
    VectorTerm* negated = scaleVector(-1.0, asVector(right), at);
    return negated == nullptr ? nullptr : addScalarToVector(ls->value, negated, at);
  }
  if (asVector(left) != nullptr && rs != nullptr) return addScalarToVector(-rs->value, asVector(left), at);
  if (asMatrix(left) != nullptr && asMatrix(right) != nullptr) {
    return subtractMatrices(asMatrix(left), asMatrix(right), at);
  }
  if (ls != nullptr && asMatrix(right) != nullptr) {
    MatrixTerm* negated = scaleMatrix(-1.0, asMatrix(right), at);
    return negated == nullptr ? nullptr : addScalarToMatrix(ls->value, negated, at);
  }
  if (asMatrix(left) != nullptr && rs != nullptr) return addScalarToMatrix(-rs->value, asMatrix(left), at);
  return fail(at, "Cannot subtract terms");
}

Term* multiplyTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls != nullptr && rs != nullptr) return ScalarTerm::make(ls->value * rs->value);
  if (asVector(left) != nullptr && asVector(right) != nullptr) {
    return multiplyVectors(asVector(left), asVector(right), at);
  }
  if (ls != nullptr && asVector(right) != nullptr) return scaleVector(ls->value, asVector(right), at);
  if (asVector(left) != nullptr && rs != nullptr) return scaleVector(rs->value, asVector(left), at);
  if (asMatrix(left) != nullptr && asMatrix(right) != nullptr) {
    return multiplyMatrices(asMatrix(left), asMatrix(right), at);
  }
  if (ls != nullptr && asMatrix(right) != nullptr) return scaleMatrix(ls->value, asMatrix(right), at);
  if (asMatrix(left) != nullptr && rs != nullptr) return scaleMatrix(rs->value, asMatrix(left), at);
  return fail(at, "Cannot multiply terms");
}

Term* divideTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot divide non-scaler terms");
  if (rs->value == 0.0) return dividedByZero(at);
  return ScalarTerm::make(ls->value / rs->value);
}

Term* remainderTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot compute remainder for non-scaler terms");
  if (rs->value == 0.0) return dividedByZero(at);
  return ScalarTerm::make(std::fmod(ls->value, rs->value));
}

Term* powerTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot compute power for non-scaler terms");
  return ScalarTerm::make(std::pow(ls->value, rs->value));
}

Term* negateTerm(Term* operand, FieldExpression* at) {
  if (ScalarTerm* s = asScalar(operand)) return ScalarTerm::make(-s->value);
  if (VectorTerm* v = asVector(operand)) return scaleVector(-1.0, v, at);
  if (MatrixTerm* m = asMatrix(operand)) return scaleMatrix(-1.0, m, at);
  return fail(at, "Cannot negate term");
}

Term* notTerm(Term* operand, FieldExpression* at) {
  ScalarTerm* s = asScalar(operand);
  if (s == nullptr) return fail(at, "Cannot negate non-scaler terms");
  return truthOf(!isTrue(s->value));
}

Term* andTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot AND non-scaler terms");
  return truthOf(isTrue(ls->value) && isTrue(rs->value));
}

Term* orTerms(Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot OR non-scaler terms");
  return truthOf(isTrue(ls->value) || isTrue(rs->value));
}

Term* compareTerms(Comparison comparison, Term* left, Term* right, FieldExpression* at) {
  ScalarTerm* ls = asScalar(left);
  ScalarTerm* rs = asScalar(right);
  if (ls == nullptr || rs == nullptr) return fail(at, "Cannot compare non-scaler terms");
  const double l = ls->value;
  const double r = rs->value;
  switch (comparison) {
    case Comparison::kEqual:
      return truthOf(l == r);
    case Comparison::kNotEqual:
      return truthOf(l != r);
    case Comparison::kLess:
      return truthOf(l < r);
    case Comparison::kGreater:
      return truthOf(r < l);
    case Comparison::kLessOrEqual:
      return truthOf(l <= r);
    case Comparison::kGreaterOrEqual:
      return truthOf(r <= l);
  }
  return truthOf(false);
}

Term* chooseTerm(Term* test, Term* ifTrue, Term* ifFalse, FieldExpression* at) {
  ScalarTerm* s = asScalar(test);
  if (s == nullptr) return fail(at, "Cannot test non-scaler terms");
  return isTrue(s->value) ? ifTrue : ifFalse;
}

}  // namespace lumeric
