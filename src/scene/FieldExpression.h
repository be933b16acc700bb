// The text of one value or expression as a field, node or statement keeps
// it, with the line it was read at, the node it belongs to and the serial
// of the last evaluation that read it.  The holder never parses its text;
// the expression language obtains it through textFor().
#ifndef LUMERIC_SCENE_FIELDEXPRESSION_H
#define LUMERIC_SCENE_FIELDEXPRESSION_H

#include <cstddef>
#include <cstdint>

namespace lumeric {

class QvNode;

class FieldExpression {
 public:
  FieldExpression() { clearStorage(); }
  // Most texts live inside the holder, which then has nothing to free.
  ~FieldExpression() {
    if (form() == kHeapForm) freeText();
  }
  // Copies text, mark and line; the owner of the target stays as it was
  // (a copy-constructed holder starts without owner).
  FieldExpression(const FieldExpression& other);
  FieldExpression& operator=(const FieldExpression& other);
  FieldExpression(FieldExpression&& other) noexcept;
  FieldExpression& operator=(FieldExpression&& other) noexcept;

  // Replaces the text with a copy of `text` (null clears it).
  void setText(const char* text);
  void setText(const char* text, size_t length);
  // Replaces the text with the number formatted with "%g".
  void setNumber(double value);
  // Replaces the text with the integer formatted with "%d".
  void setInteger(int value);
  // Removes the text (the holder then has none, as when constructed).
  void clearText() { freeText(); }

  // Gives the holder an owner (and the owner's line) only when it has none.
  void attachOwner(QvNode* node);

  // The text, or null.
  const char* text() const {
    const char f = form();
    if (f == kInlineForm) return storage_.bytes;
    return f == kHeapForm ? storage_.heap.pointer : nullptr;
  }
  bool hasText() const {
    const char* t = text();
    return t != nullptr && t[0] != '\0';
  }
  bool startsWith(char c) const {
    const char* t = text();
    return t != nullptr && t[0] == c;
  }

  // False when no holder anywhere keeps its text on the heap: destroying
  // holders then frees nothing, and a store of millions of them can skip
  // walking them.
  static bool anyHeapTexts() { return heapTexts_ != 0; }

  // The circular-reference guard, then the text: an expression read again
  // within the evaluation that has already read it posts "Error: Circular
  // reference" and reads as "0".
  const char* textFor(int serial);

  int32_t mark = -1;
  int32_t line = 0;
  QvNode* owner = nullptr;

 private:
  // Texts of up to 15 characters live inside the holder; longer ones on the
  // heap.  The last byte tells the form: 0 inline (it doubles as the
  // terminator of a 15-character text), 1 on the heap, 2 no text at all.
  static constexpr size_t kInline = 16;
  enum : char { kInlineForm = 0, kHeapForm = 1, kNoText = 2 };

  void clearStorage() {
    storage_.heap.pointer = nullptr;
    storage_.bytes[kInline - 1] = kNoText;
  }
  void freeText();
  char form() const { return storage_.bytes[kInline - 1]; }
  void moveFrom(FieldExpression& other);

  // The holders in the heap form, in every run.
  static long heapTexts_;

  union Storage {
    char bytes[kInline];
    struct {
      char* pointer;
      uint64_t reserved;  // its last byte is the form tag
    } heap;
  } storage_;
};

static_assert(sizeof(FieldExpression) == 32, "FieldExpression should stay compact");

}  // namespace lumeric

#endif  // LUMERIC_SCENE_FIELDEXPRESSION_H
