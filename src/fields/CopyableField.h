// clone() and copyValueFrom() for every field type, from the one operation
// that differs between types: `void copyFrom(Derived& source)`, which fills
// the field with the evaluated value of another field of its type.
//
//   class QvSFImage : public CopyableField<QvSFImage, QvSingleField> { ... };
//
// Base is the class the type would otherwise derive from; its constructors
// are available to Derived as they are.
#ifndef LUMERIC_FIELDS_COPYABLEFIELD_H
#define LUMERIC_FIELDS_COPYABLEFIELD_H

#include "scene/QvField.h"

namespace lumeric {

template <class Derived, class Base>
class CopyableField : public Base {
 public:
  using Base::Base;

  // A new Derived holding this field's evaluated value; the caller owns it.
  QvField* clone() override {
    Derived* copy = new Derived;
    copy->copyFrom(self());
    return copy;
  }
  // Copies from `source` when it is a Derived; any other field is ignored.
  void copyValueFrom(QvField* source) override {
    if (Derived* same = dynamic_cast<Derived*>(source)) self().copyFrom(*same);
  }

 private:
  Derived& self() { return static_cast<Derived&>(*this); }
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_COPYABLEFIELD_H
