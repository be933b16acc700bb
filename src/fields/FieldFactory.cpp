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

template <class Field>
QvField* make() {
  return new Field;
}

struct FieldType {
  const char* name;
  QvField* (*create)();
};

const FieldType kFieldTypes[] = {
    {"MFColor", make<QvMFColor>},     {"MFFloat", make<QvMFFloat>},       {"MFLong", make<QvMFLong>},
    {"MFString", make<QvMFString>},   {"MFVec2f", make<QvMFVec2f>},       {"MFVec3f", make<QvMFVec3f>},
    {"MFVec4f", make<QvMFVec4f>},     {"SFBitMask", make<QvSFBitMask>},   {"SFBool", make<QvSFBool>},
    {"SFColor", make<QvSFColor>},     {"SFEnum", make<QvSFEnum>},         {"SFFloat", make<QvSFFloat>},
    {"SFImage", make<QvSFImage>},     {"SFLong", make<QvSFLong>},         {"SFMatrix", make<QvSFMatrix>},
    {"SFNode", make<QvSFNode>},       {"SFRotation", make<QvSFRotation>}, {"SFString", make<QvSFString>},
    {"SFVec2f", make<QvSFVec2f>},     {"SFVec3f", make<QvSFVec3f>},       {"SFVec4f", make<QvSFVec4f>},
};

}  // namespace

QvField* createField(QvAtom typeName) {
  for (const FieldType& type : kFieldTypes) {
    if (std::strcmp(type.name, typeName.text()) == 0) return type.create();
  }
  return nullptr;
}

}  // namespace lumeric
