// MFString: a list of string expressions, each kept and stored in quotation
// marks.  A string list never holds expression elements.
#ifndef LUMERIC_FIELDS_QVMFSTRING_H
#define LUMERIC_FIELDS_QVMFSTRING_H

#include "fields/CopyableField.h"
#include "fields/ExpressionListField.h"

namespace lumeric {

class QvMFString : public CopyableField<QvMFString, ExpressionListField> {
 public:
  QvMFString() : CopyableField(1) {}

  static constexpr const char* kTypeName = "MFString";
  const char* getTypeName() const override { return kTypeName; }
  // Adds one element holding a string term's characters in quotation marks.
  void appendValue(Term* value, FieldExpression* at) override;
  // Only one element at a time (i given) takes a string.
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  // Element i's string, or null; the whole list cannot be asked for.
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;
  // One value text; "=" has no meaning here.
  bool readElement(QvSceneInput* in, int index) override { return readTexts(in, index, false); }

  // As many elements as `source`; each holds its evaluated string, or no
  // text when it gives none.
  void copyFrom(QvMFString& source);
  // A list of one element holding `text` in quotation marks.
  void setDefault(const char* text);
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVMFSTRING_H
