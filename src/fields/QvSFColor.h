// SFColor: three components (red, green, blue) and a separate whole-field
// expression; written unrounded.
#ifndef LUMERIC_FIELDS_QVSFCOLOR_H
#define LUMERIC_FIELDS_QVSFCOLOR_H

#include "fields/CopyableField.h"
#include "fields/WholeExpressionField.h"

namespace lumeric {

extern template class WholeExpressionField<3>;

class QvSFColor : public CopyableField<QvSFColor, WholeExpressionField<3>> {
 public:
  static constexpr const char* kTypeName = "SFColor";
  const char* getTypeName() const override { return kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;

  // The colour of the whole-field expression (nothing when it gives none)
  // or the evaluated components.
  void copyFrom(QvSFColor& source);
  void setDefault(double r, double g, double b);
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFCOLOR_H
