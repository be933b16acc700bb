// Character classes of the scene language (the classic locale).  Bytes above
// 127 are neither letters, digits, white space nor name characters: a name
// stops in front of them, while a value text keeps them as they are.
#ifndef LUMERIC_CORE_CHARACTERCLASSES_H
#define LUMERIC_CORE_CHARACTERCLASSES_H

namespace lumeric {

bool isSceneSpace(int c);
bool isNameChar(int c);
bool isNameStart(int c);  // a name character that is not a digit
inline bool isAsciiDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace lumeric

#endif  // LUMERIC_CORE_CHARACTERCLASSES_H
