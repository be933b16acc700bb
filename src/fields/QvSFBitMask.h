// SFBitMask: a combination of flags of an enumeration, read as one name or
// as names joined by "|" in parentheses.
#ifndef LUMERIC_FIELDS_QVSFBITMASK_H
#define LUMERIC_FIELDS_QVSFBITMASK_H

#include "fields/CopyableField.h"
#include "fields/QvSFEnum.h"

namespace lumeric {

class QvSFBitMask : public CopyableField<QvSFBitMask, QvSFEnum> {
 public:
  static constexpr const char* kTypeName = "SFBitMask";
  const char* getTypeName() const override { return kTypeName; }
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  // One name when an entry holds exactly `value`; otherwise " ( ", the
  // entries sharing a bit with `value` joined by " | ", " )\n".
  void write(SceneWriter& out) override;
  bool readValue(QvSceneInput* in) override;

 private:
  // The value of the entry named `name`; reports an unknown name.
  bool lookUpFlag(QvSceneInput* in, QvAtom name, int& flag);
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFBITMASK_H
