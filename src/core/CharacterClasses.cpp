#include "core/CharacterClasses.h"

#include <cctype>
#include <cstring>

namespace lumeric {

bool isSceneSpace(int c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

bool isNameChar(int c) {
  unsigned char u = static_cast<unsigned char>(c);
  if (u > 127) return false;
  if (std::isalnum(u)) return true;
  if (!std::isprint(u) || u == ' ') return false;
  return std::strchr("+'\"\\{}[],.#&", u) == nullptr;
}

bool isNameStart(int c) { return isNameChar(c) && !isAsciiDigit(static_cast<char>(c)); }

}  // namespace lumeric
