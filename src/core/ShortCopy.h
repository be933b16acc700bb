// Copies of a few bytes without a call: values are mostly short texts, and
// a library copy of a length known only at run time costs more than the
// bytes it moves.
#ifndef LUMERIC_CORE_SHORTCOPY_H
#define LUMERIC_CORE_SHORTCOPY_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumeric {

// Copies `n` bytes, sizeof(Word) <= n <= 2 * sizeof(Word), as a word at
// each end; the two may overlap.
template <class Word>
inline void copyWordEnds(char* to, const char* from, size_t n) {
  Word head;
  Word tail;
  std::memcpy(&head, from, sizeof head);
  std::memcpy(&tail, from + n - sizeof tail, sizeof tail);
  std::memcpy(to, &head, sizeof head);
  std::memcpy(to + n - sizeof tail, &tail, sizeof tail);
}

// Copies `n` bytes, at most 16, in two fixed-size moves.
inline void copyShort(char* to, const char* from, size_t n) {
  if (n >= 8) {
    copyWordEnds<uint64_t>(to, from, n);
  } else if (n >= 4) {
    copyWordEnds<uint32_t>(to, from, n);
  } else if (n > 0) {
    to[0] = from[0];
    to[n / 2] = from[n / 2];
    to[n - 1] = from[n - 1];
  }
}

}  // namespace lumeric

#endif  // LUMERIC_CORE_SHORTCOPY_H
