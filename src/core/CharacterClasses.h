// Character classes of the scene language (the classic locale).  Bytes above
// 127 are neither letters, digits, white space nor name characters: a name
// stops in front of them, while a value text keeps them as they are.  The
// reader asks for every byte of a scene, so the classes are looked up in a
// table made at compile time.
#ifndef LUMERIC_CORE_CHARACTERCLASSES_H
#define LUMERIC_CORE_CHARACTERCLASSES_H

namespace lumeric {

namespace characterclasses {

enum : unsigned char { kSpace = 1, kName = 2, kDigit = 4 };

// Printable ASCII except the space and the punctuation that ends a name.
constexpr bool namePunctuation(int c) {
  for (const char* p = "+'\"\\{}[],.#&"; *p != '\0'; ++p) {
    if (*p == c) return true;
  }
  return false;
}

constexpr unsigned char classesOf(int c) {
  unsigned char bits = 0;
  if (c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f') bits |= kSpace;
  if (c > ' ' && c < 127 && !namePunctuation(c)) bits |= kName;
  if (c >= '0' && c <= '9') bits |= kDigit;
  return bits;
}

struct Table {
  unsigned char bits[256] = {};
  constexpr Table() {
    for (int c = 0; c < 256; ++c) bits[c] = classesOf(c);
  }
};

inline constexpr Table kTable{};

inline bool has(int c, unsigned char bits) { return (kTable.bits[static_cast<unsigned char>(c)] & bits) != 0; }

}  // namespace characterclasses

inline bool isSceneSpace(int c) { return characterclasses::has(c, characterclasses::kSpace); }
inline bool isNameChar(int c) { return characterclasses::has(c, characterclasses::kName); }
// A name character that is not a digit.
inline bool isNameStart(int c) { return isNameChar(c) && !characterclasses::has(c, characterclasses::kDigit); }
inline bool isAsciiDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace lumeric

#endif  // LUMERIC_CORE_CHARACTERCLASSES_H
