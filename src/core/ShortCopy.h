// Copies of a few bytes without a call: values are mostly short texts, and
// a library copy of a length known only at run time costs more than the
// bytes it moves.
#ifndef LUMERIC_CORE_SHORTCOPY_H
#define LUMERIC_CORE_SHORTCOPY_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumeric {

// Copies `n` bytes, at most 16, as two overlapping fixed-size moves.
inline void copyShort(char* to, const char* from, size_t n) {
  if (n >= 8) {
    uint64_t head;
    uint64_t tail;
    std::memcpy(&head, from, 8);
    std::memcpy(&tail, from + n - 8, 8);
    std::memcpy(to, &head, 8);
    std::memcpy(to + n - 8, &tail, 8);
  } else if (n >= 4) {
    uint32_t head;
    uint32_t tail;
    std::memcpy(&head, from, 4);
    std::memcpy(&tail, from + n - 4, 4);
    std::memcpy(to, &head, 4);
    std::memcpy(to + n - 4, &tail, 4);
  } else if (n > 0) {
    to[0] = from[0];
    to[n / 2] = from[n / 2];
    to[n - 1] = from[n - 1];
  }
}

}  // namespace lumeric

#endif  // LUMERIC_CORE_SHORTCOPY_H
