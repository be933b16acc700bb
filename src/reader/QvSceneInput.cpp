#include "reader/QvSceneInput.h"

#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "core/CharacterClasses.h"
#include "core/QvContext.h"
#include "reader/ReadErrors.h"
#include "scene/FieldExpression.h"
#include "scene/QvNode.h"

namespace lumeric {

namespace {

constexpr char kHeaderText[] = "#VRML V1.0 ascii";
constexpr size_t kHeaderKeep = 255;
// Integer digit runs longer than this are consumed but not kept; no value
// of the integer kinds needs more digits, and the value saturates anyway.
constexpr size_t kMaxIntegerDigits = 40;

// A line end was read.  The count stops at the largest line number rather
// than overflow; messages then name that line.
void countLine(QvSceneInput::State& s) {
  if (s.line < INT_MAX) ++s.line;
}

// Adds a character of a string unless the string is full; the rest of a
// longer string is read and dropped, so no input can fill the memory.
void keep(std::string& text, char c) {
  if (text.size() < QvSceneInput::kMaxStringLength) text += c;
}

bool isAsciiLower(char c) { return c >= 'a' && c <= 'z'; }
bool isAsciiUpper(char c) { return c >= 'A' && c <= 'Z'; }
bool isHexDigit(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

// Characters that neither end a value text nor change how it is read.
constexpr bool ordinaryValueChar(int c) {
  if (c == 0 || characterclasses::classesOf(c) & characterclasses::kSpace) return false;
  for (const char* p = "\\\",()[]"; *p != '\0'; ++p) {
    if (*p == c) return false;
  }
  return true;
}

struct OrdinaryValueChars {
  bool ordinary[256] = {};
  constexpr OrdinaryValueChars() {
    for (int c = 0; c < 256; ++c) ordinary[c] = ordinaryValueChar(c);
  }
};

constexpr OrdinaryValueChars kOrdinaryValueChars{};

bool isOrdinaryValueChar(char c) { return kOrdinaryValueChars.ordinary[static_cast<unsigned char>(c)]; }

// Skips the white space already buffered, counting lines, without going
// through getChar.  True when it stopped in front of a buffered character
// that is neither white space nor the start of a comment; false when the
// buffer ran out, a comment starts or a word given back is pending, which
// the character-wise loop handles.
bool skipBufferedSpace(QvSceneInput::State& s) {
  if (s.putBackIndex >= 0) return false;
  const char* buffer = s.buffer.get();
  size_t position = s.position;
  const size_t end = s.end;
  while (position < end) {
    const char c = buffer[position];
    if (c == '\n') {
      countLine(s);
    } else if (!isSceneSpace(c)) {
      break;
    }
    ++position;
  }
  s.position = position;
  if (position == end || buffer[position] == '#') return false;
  s.lastReadFailed = false;
  return true;
}

// Whether the character after a run of ordinary characters ends the value
// text there: white space (a line end is taken with the text), a comma, or a
// closing bracket that no opening one matches.
bool endsPlainValue(char c) { return isSceneSpace(c) || c == ',' || c == ']'; }

}  // namespace

QvSceneInput::QvSceneInput() { setFile(stdin); }

QvSceneInput::~QvSceneInput() = default;

void QvSceneInput::setFile(FILE* file) {
  state_.reset(new State());
  state_->file = file;
}

QvSceneInput::SavedState QvSceneInput::saveState() {
  SavedState saved = std::move(state_);
  state_.reset(new State());
  return saved;
}

void QvSceneInput::restoreState(SavedState state) {
  if (state != nullptr) state_ = std::move(state);
}

bool QvSceneInput::readRaw(char& c) {
  State& s = *state_;
  if (s.position == s.end) {
    size_t got = (s.file == nullptr || s.atEnd) ? 0 : std::fread(s.buffer.get(), 1, State::kBufferSize, s.file);
    if (got == 0) {
      s.atEnd = true;
      c = kEndOfFile;
      return false;
    }
    s.position = 0;
    s.end = got;
  }
  c = s.buffer[s.position++];
  return true;
}

void QvSceneInput::unreadRaw() {
  if (state_->position > 0) --state_->position;
}

bool QvSceneInput::checkHeader() {
  State& s = *state_;
  s.headerRead = true;
  char c;
  bool ok = readRaw(c);
  if (ok && c == '#') {
    std::string kept(1, '#');
    while (readRaw(c)) {
      if (c == '\n') {
        countLine(s);
        break;
      }
      if (kept.size() < kHeaderKeep) kept += c;
    }
    if (kept.compare(0, sizeof kHeaderText - 1, kHeaderText) == 0) return true;
  } else if (ok) {
    unreadRaw();
  }
  readError(this, "File does not have a valid header string");
  s.usable = false;
  return false;
}

bool QvSceneInput::getCharSlowly(char& c) {
  State& s = *state_;
  if (s.putBackIndex >= 0) {
    if (s.putBackIndex < static_cast<int>(s.putBack.size())) {
      c = s.putBack[static_cast<size_t>(s.putBackIndex++)];
      s.lastReadFailed = false;
      return true;
    }
    s.putBackIndex = -1;
  }
  if (!s.headerRead && !checkHeader()) {
    c = kEndOfFile;
    s.lastReadFailed = true;
    return false;
  }
  bool ok = readRaw(c);
  s.lastReadFailed = !ok;
  return ok;
}

void QvSceneInput::putBackChar(char) {
  State& s = *state_;
  if (s.putBackIndex > 0) {
    --s.putBackIndex;
    return;
  }
  if (s.lastReadFailed) return;  // the end of the file is never given back
  unreadRaw();
}

void QvSceneInput::putBackWord(const char* text) {
  state_->putBack = text != nullptr ? text : "";
  state_->putBackIndex = 0;
}

std::string QvSceneInput::peekNameRest() const {
  const State& s = *state_;
  std::string rest;
  // Appends the name characters at the start of `from`; true when all
  // `count` were, so that the name may go on after them.
  auto take = [&rest](const char* from, size_t count) {
    size_t k = 0;
    for (; k < count && isNameChar(from[k]) && rest.size() < kMaxNameLength; ++k) rest += from[k];
    return k == count;
  };
  if (s.putBackIndex >= 0 && static_cast<size_t>(s.putBackIndex) < s.putBack.size()) {
    const size_t left = s.putBack.size() - static_cast<size_t>(s.putBackIndex);
    if (!take(s.putBack.data() + s.putBackIndex, left)) return rest;
  }
  take(s.buffer.get() + s.position, s.end - s.position);
  return rest;
}

bool QvSceneInput::eof() const { return state_->atEnd; }

int QvSceneInput::getLine() const { return state_->line; }

void QvSceneInput::setLine(int line) { state_->line = line; }

bool QvSceneInput::isUsable() const { return state_->usable; }

bool QvSceneInput::skipWhiteSpace() {
  State& s = *state_;
  if (!s.headerRead && s.putBackIndex < 0 && !checkHeader()) return false;
  bool headerChecked = s.headerRead;
  char c;
  while (!skipBufferedSpace(s) && getChar(c)) {
    if (c == '\n') {
      countLine(s);
    } else if (c == '#') {
      bool closed = false;
      while (getChar(c)) {
        if (c == '\n') {
          countLine(s);
          closed = true;
          break;
        }
      }
      if (!closed) {
        readError(this, "EOF reached before end of comment");
        return true;
      }
    } else if (!isSceneSpace(c)) {
      putBackChar(c);
      return true;
    }
  }
  // Only a header check made within this call can fail it; the end of the
  // file is a success.
  return headerChecked || s.usable;
}

bool QvSceneInput::readChar(char& c) {
  if (!skipWhiteSpace()) {
    c = kEndOfFile;
    return false;
  }
  return getChar(c);
}

bool QvSceneInput::peekChar(char expected) {
  char c;
  if (!readChar(c)) return false;
  putBackChar(c);
  return c == expected;
}

bool QvSceneInput::readName(QvAtom& name, NameKind kind) {
  name = QvAtom();
  if (!skipWhiteSpace()) return false;
  char c;
  if (!getChar(c)) return true;
  bool qualifies = kind == kLowerName ? isAsciiLower(c) : kind == kDefName ? isNameStart(c) : isAsciiUpper(c);
  if (!qualifies) {
    putBackChar(c);
    return true;
  }
  char text[kMaxNameLength + 1];
  size_t length = 0;
  text[length++] = c;
  while (getChar(c)) {
    if (!isNameChar(c)) {
      putBackChar(c);
      break;
    }
    if (length < kMaxNameLength) text[length++] = c;
  }
  name = QvAtom(text, length);
  return true;
}

bool QvSceneInput::readString(std::string& text) {
  text.clear();
  if (!skipWhiteSpace()) return false;
  char c;
  if (!getChar(c)) return true;
  if (c != '"') {
    putBackChar(c);
    while (getChar(c)) {
      if (isSceneSpace(c)) {
        putBackChar(c);
        break;
      }
      keep(text, c);
    }
    return true;
  }
  while (getChar(c)) {
    if (c == '"') break;
    if (c == '\\') {
      char next;
      if (!getChar(next)) {
        keep(text, c);
        break;
      }
      if (next == '"') {
        keep(text, '"');
        continue;
      }
      putBackChar(next);
    } else if (c == '\n') {
      countLine(*state_);
    }
    keep(text, c);
  }
  return true;
}

bool QvSceneInput::readValueText(FieldExpression& expr, QvNode* node) {
  if (!skipWhiteSpace()) return false;
  expr.line = state_->line;
  expr.owner = node;
  if (readPlainValueText(expr)) return true;
  char c;
  if (!getChar(c)) return false;

  char text[kMaxValueText + 1];
  size_t length = 0;
  text[length++] = c;
  int openParens = c == '(' ? 1 : 0;
  int closeParens = 0;
  int openBrackets = 0;
  int closeBrackets = 0;
  bool quoted = c == '"';

  while (length < kMaxValueText) {
    // Ordinary characters are copied straight from the buffer; only the
    // few that can end or shape a value text go through the tests below.
    State& s = *state_;
    if (s.putBackIndex < 0 && s.position < s.end && isOrdinaryValueChar(s.buffer[s.position])) {
      text[length++] = s.buffer[s.position++];
      continue;
    }
    if (!getChar(c)) break;
    if (c == '\n') {
      countLine(*state_);
      break;
    }
    bool balanced = openParens == closeParens;
    if (isSceneSpace(c) && !quoted && balanced) {
      putBackChar(c);
      break;
    }
    if (c == '\\') {
      if (!getChar(c)) break;
      if (c == '\n') countLine(*state_);
      text[length++] = c;
      continue;
    }
    if (c == '"') {
      quoted = !quoted;
    } else if (c == ',' && !quoted && balanced) {
      putBackChar(c);
      break;
    } else if (c == '(') {
      ++openParens;
    } else if (c == ')') {
      ++closeParens;
    } else if (c == '[') {
      ++openBrackets;
    } else if (c == ']') {
      ++closeBrackets;
      if (closeBrackets != openBrackets) {
        putBackChar(c);
        break;
      }
    }
    text[length++] = c;
  }
  expr.setText(text, length);
  return true;
}

// The common case of readValueText: a run of ordinary characters that
// ends, within the buffer, at a character that ends a value.  The text is
// taken straight from the buffer.  False, having read nothing, otherwise.
bool QvSceneInput::readPlainValueText(FieldExpression& expr) {
  State& s = *state_;
  if (s.putBackIndex >= 0) return false;
  const char* begin = s.buffer.get() + s.position;
  const char* limit = s.buffer.get() + s.end;
  const char* p = begin;
  while (p < limit && isOrdinaryValueChar(*p)) ++p;
  const size_t length = static_cast<size_t>(p - begin);
  if (length == 0 || length >= kMaxValueText || p == limit || !endsPlainValue(*p)) return false;
  s.position += length;
  if (*p == '\n') {
    ++s.position;
    countLine(s);
  }
  s.lastReadFailed = false;
  expr.setText(begin, length);
  return true;
}

bool QvSceneInput::readDigits(std::string& digits, bool allowSign) {
  digits.clear();
  if (!skipWhiteSpace()) return false;
  char c;
  if (!getChar(c)) return false;
  if (allowSign && (c == '-' || c == '+')) {
    digits += c;
    if (!getChar(c)) return false;
  }
  auto keep = [&digits](char d) {
    if (digits.size() < kMaxIntegerDigits) digits += d;
  };
  if (c == '0') {
    keep(c);
    if (!getChar(c)) return true;
    if (c == 'x') {
      keep(c);
      bool any = false;
      while (getChar(c)) {
        if (!isHexDigit(c)) {
          putBackChar(c);
          break;
        }
        keep(c);
        any = true;
      }
      return any;
    }
    if (!isAsciiDigit(c)) {
      putBackChar(c);
      return true;
    }
  } else if (!isAsciiDigit(c)) {
    putBackChar(c);
    return false;
  }
  keep(c);
  while (getChar(c)) {
    if (!isAsciiDigit(c)) {
      putBackChar(c);
      break;
    }
    keep(c);
  }
  return true;
}

// Values beyond the range of the target type saturate at its limits, as
// the standard conversions do for their own types: a defined value rather
// than a wrapped one.
template <typename Integer>
bool QvSceneInput::readClampedInteger(Integer& value) {
  using Limits = std::numeric_limits<Integer>;
  std::string digits;
  if (!readDigits(digits, Limits::is_signed)) return false;
  if constexpr (Limits::is_signed) {
    long long v = std::strtoll(digits.c_str(), nullptr, 0);
    value = static_cast<Integer>(v < Limits::min() ? Limits::min() : v > Limits::max() ? Limits::max() : v);
  } else {
    unsigned long long v = std::strtoull(digits.c_str(), nullptr, 0);
    value = static_cast<Integer>(v > Limits::max() ? Limits::max() : v);
  }
  return true;
}

bool QvSceneInput::readInteger(int32_t& value) { return readClampedInteger(value); }

bool QvSceneInput::readShort(int16_t& value) { return readClampedInteger(value); }

bool QvSceneInput::readUnsigned(uint32_t& value) { return readClampedInteger(value); }

}  // namespace lumeric
