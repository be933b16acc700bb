// SFEnum: one value of an enumeration, read and written by name.  The
// enumeration's arrays belong to the node class's field table and are
// shared by every field of that enumeration (and by copies).
#ifndef LUMERIC_FIELDS_QVSFENUM_H
#define LUMERIC_FIELDS_QVSFENUM_H

#include <cstdint>

#include "core/QvAtom.h"
#include "fields/CopyableField.h"

namespace lumeric {

class QvSFEnum : public CopyableField<QvSFEnum, QvSingleField> {
 public:
  static constexpr const char* kTypeName = "SFEnum";
  const char* getTypeName() const override { return kTypeName; }
  // Not available for enumerations: report at `at`; the get gives null.
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  // " %s\n" with the name of the first entry holding `value`.
  void write(SceneWriter& out) override;
  // One upper-case name, looked up among the entries.
  bool readValue(QvSceneInput* in) override;

  // Takes the value and shares the enumeration of `source`.
  void copyFrom(QvSFEnum& source);
  void setDefault(int v) { value = v; }
  // The enumeration's entries; the arrays are not copied and must outlive
  // the field.
  void setEnumData(int count, const int* values, const QvAtom* names);

  int32_t value = 0;
  int32_t numEnums = 0;
  const int* enumValues = nullptr;
  const QvAtom* enumNames = nullptr;

 protected:
  // The index of the entry named `name`, or -1.
  int findName(QvAtom name) const;
  // The index of the first entry whose value is `v`, or -1.
  int findValue(int v) const;
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFENUM_H
