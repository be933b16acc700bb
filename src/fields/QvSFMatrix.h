// SFMatrix: sixteen components in row-major order and a separate
// whole-field expression; written unrounded on four lines.  Its
// expressions are not given an owner by attachNode.
#ifndef LUMERIC_FIELDS_QVSFMATRIX_H
#define LUMERIC_FIELDS_QVSFMATRIX_H

#include "fields/CopyableField.h"
#include "fields/WholeExpressionField.h"

namespace lumeric {

extern template class WholeExpressionField<16>;

class QvSFMatrix : public CopyableField<QvSFMatrix, WholeExpressionField<16>> {
 public:
  static constexpr const char* kTypeName = "SFMatrix";
  const char* getTypeName() const override { return kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;
  void attachNode(QvNode*) override {}

  // The 4 by 4 matrix of the whole-field expression (nothing when it gives
  // none) or the sixteen evaluated entries.
  void copyFrom(QvSFMatrix& source);
  // 1 on the diagonal, 0 elsewhere.
  void setIdentityDefault();

 private:
  // The whole-field expression's 4 by 4 matrix, or null.
  MatrixTerm* evaluateWhole();
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFMATRIX_H
