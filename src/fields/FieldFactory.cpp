#include "fields/FieldFactory.h"

#include <cstring>

#include "fields/QvMFColor.h"
#include "fields/QvMFFloat.h"
#include "fields/QvMFLong.h"
#include "fields/QvMFString.h"
#include "fields/QvMFVec2f.h"
#include "fields/QvMFVec3f.h"
#include "fields/QvMFVec4f.h"
#include "fields/QvSFBitMask.h"
#include "fields/QvSFBool.h"
#include "fields/QvSFColor.h"
#include "fields/QvSFEnum.h"
#include "fields/QvSFFloat.h"
#include "fields/QvSFImage.h"
#include "fields/QvSFLong.h"
#include "fields/QvSFMatrix.h"
#include "fields/QvSFNode.h"
#include "fields/QvSFRotation.h"
#include "fields/QvSFString.h"
#include "fields/QvSFVec2f.h"
#include "fields/QvSFVec3f.h"
#include "fields/QvSFVec4f.h"
#include "core/QvAtom.h"

namespace lumeric {

namespace {

struct FieldType {
  const char* name;
  QvField* (*create)();
};

// The row of `Field`, under the name the type states (kTypeName).
template <class Field>
constexpr FieldType fieldType() {
  return FieldType{Field::kTypeName, [] { return static_cast<QvField*>(new Field); }};
}

const FieldType kFieldTypes[] = {
    fieldType<QvMFColor>(),
    fieldType<QvMFFloat>(),
    fieldType<QvMFLong>(),
    fieldType<QvMFString>(),
    fieldType<QvMFVec2f>(),
    fieldType<QvMFVec3f>(),
    fieldType<QvMFVec4f>(),
    fieldType<QvSFBitMask>(),
    fieldType<QvSFBool>(),
    fieldType<QvSFColor>(),
    fieldType<QvSFEnum>(),
    fieldType<QvSFFloat>(),
    fieldType<QvSFImage>(),
    fieldType<QvSFLong>(),
    fieldType<QvSFMatrix>(),
    fieldType<QvSFNode>(),
    fieldType<QvSFRotation>(),
    fieldType<QvSFString>(),
    fieldType<QvSFVec2f>(),
    fieldType<QvSFVec3f>(),
    fieldType<QvSFVec4f>(),
};

}  // namespace

QvField* createField(QvAtom typeName) {
  for (const FieldType& type : kFieldTypes) {
    if (std::strcmp(type.name, typeName.text()) == 0) return type.create();
  }
  return nullptr;
}

}  // namespace lumeric
