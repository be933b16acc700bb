// Interned names.  Two atoms are equal exactly when they hold the same
// handle; the handle is the address of the text kept once in the pool.
#ifndef LUMERIC_CORE_QVATOM_H
#define LUMERIC_CORE_QVATOM_H

#include <cstddef>

namespace lumeric {

class QvAtom {
 public:
  // The empty atom.
  QvAtom() : text_(kEmptyText) {}
  // Interns `text` (entering it in the pool when it is new).
  explicit QvAtom(const char* text);
  QvAtom(const char* text, size_t length);

  const char* text() const { return text_; }
  bool isEmpty() const { return text_[0] == '\0'; }
  // Whether the atom's text is `text`, without interning `text`.
  bool named(const char* text) const;
  // The handle, usable as a table key.
  const void* key() const { return text_; }

  bool operator==(QvAtom other) const { return text_ == other.text_; }
  bool operator!=(QvAtom other) const { return text_ != other.text_; }

 private:
  static const char kEmptyText[1];
  const char* text_;
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_QVATOM_H
