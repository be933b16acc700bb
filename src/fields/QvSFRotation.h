// SFRotation: four components (axis x, y, z and the angle in radians) and a
// separate whole-field expression.  The axis is written rounded, the angle
// unrounded.
#ifndef LUMERIC_FIELDS_QVSFROTATION_H
#define LUMERIC_FIELDS_QVSFROTATION_H

#include "fields/CopyableField.h"
#include "fields/WholeExpressionField.h"

namespace lumeric {

extern template class WholeExpressionField<4>;

class QvSFRotation : public CopyableField<QvSFRotation, WholeExpressionField<4>> {
 public:
  static constexpr const char* kTypeName = "SFRotation";
  const char* getTypeName() const override { return kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // The four numbers of the whole-field expression or of the components;
  // a whole-field expression that is no vector of four is reported at the
  // source and the copy keeps no values.
  void copyFrom(QvSFRotation& source);
  void setDefault(double x, double y, double z, double angle);
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFROTATION_H
