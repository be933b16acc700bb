#include "expr/ExpressionLexer.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>

#include "core/DecimalText.h"
#include "core/FloatText.h"
#include "expr/Term.h"

namespace lumeric {

namespace {

constexpr size_t kMaxStringLength = 254;
constexpr ptrdiff_t kMaxNameLength = 255;

// What the first character of a token starts.  Bytes above 127 never reach
// the table (see scanToken).
enum CharClass : uint8_t {
  kEnd,        // control characters end the expression as if the text ended
  kBlank,      // white space that reached dispatch (never: it is skipped first)
  kSelf,       // a token of its own code
  kQuote,      // a string
  kComment,    // "#" up to a carriage return
  kAmpersand,  // "&&" or "&"
  kBar,        // "||" or "|"
  kLess,       // "<=" or "<"
  kEquals,     // "==" or "="
  kGreater,    // ">=" or ">"
  kBang,       // "!=" or "!"
  kDigit,
  kPoint,      // a number when a digit follows, else "."
  kLetter,
};

constexpr std::array<CharClass, 128> makeClassTable() {
  std::array<CharClass, 128> table{};
  for (auto& entry : table) entry = kEnd;
  for (char c : {'\t', '\r', ' '}) table[static_cast<unsigned char>(c)] = kBlank;
  for (char c : {'$', '%', '\'', '(', ')', '*', '+', ',', '-', '/', ':', ';', '?', '@', '[', '\\', ']', '^', '_',
                 '`', '{', '}', '~'}) {
    table[static_cast<unsigned char>(c)] = kSelf;
  }
  table['"'] = kQuote;
  table['#'] = kComment;
  table['&'] = kAmpersand;
  table['|'] = kBar;
  table['<'] = kLess;
  table['='] = kEquals;
  table['>'] = kGreater;
  table['!'] = kBang;
  table['.'] = kPoint;
  for (int c = '0'; c <= '9'; ++c) table[c] = kDigit;
  for (int c = 'a'; c <= 'z'; ++c) table[c] = kLetter;
  for (int c = 'A'; c <= 'Z'; ++c) table[c] = kLetter;
  return table;
}

constexpr std::array<CharClass, 128> kClassOf = makeClassTable();

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isNameChar(char c) { return isLetter(c) || isDigit(c) || c == '_'; }
bool isHexDigit(char c) { return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }
bool isWhiteSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

int hexDigitValue(char c) {
  if (isDigit(c)) return c - '0';
  return (c | 0x20) - 'a' + 10;
}

struct Keyword {
  const char* text;
  int token;
};

constexpr Keyword kKeywords[] = {
    {"if", kIfToken},         {"set", kSetToken},       {"use", kUseToken},
    {"true", kTrueToken},     {"else", kElseToken},     {"then", kThenToken},
    {"false", kFalseToken},   {"append", kAppendToken}, {"declare", kDeclareToken},
};

// Keywords match whole names regardless of the case of the name's letters.
int keywordOrName(const char* name, size_t length) {
  for (const Keyword& keyword : kKeywords) {
    if (std::strlen(keyword.text) != length) continue;
    size_t i = 0;
    while (i < length && (name[i] | 0x20) == keyword.text[i]) ++i;
    if (i == length) return keyword.token;
  }
  return kNameToken;
}

// Most number texts have few digits and a small exponent.  When the digits
// form an integer below 2^53 and the power of ten is at most 10^22, both
// are exact doubles and one multiplication or division rounds correctly, so
// the result is exactly what strtod gives.
bool convertShortDecimal(const char* begin, const char* end, double* value) {
  static const double kPowers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  uint64_t digits = 0;
  int significant = 0;
  int scale = 0;  // the power of ten the digits are multiplied by
  const char* p = begin;
  for (; p < end && isDigit(*p); ++p) {
    if (digits == 0 && *p == '0') continue;
    if (++significant > 15) return false;
    digits = digits * 10 + static_cast<uint64_t>(*p - '0');
  }
  if (p < end && *p == '.') {
    for (++p; p < end && isDigit(*p); ++p) {
      --scale;
      if (digits == 0 && *p == '0') continue;
      if (++significant > 15) return false;
      digits = digits * 10 + static_cast<uint64_t>(*p - '0');
    }
  }
  if (p < end) {  // an exponent, well formed by now
    ++p;
    const bool negative = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    int exponent = 0;
    for (; p < end; ++p) {
      if (exponent > 1000) return false;
      exponent = exponent * 10 + (*p - '0');
    }
    scale += negative ? -exponent : exponent;
  }
  if (scale < -22 || scale > 22) return false;
  const double mantissa = static_cast<double>(digits);
  *value = scale < 0 ? mantissa / kPowers[-scale] : mantissa * kPowers[scale];
  return true;
}

// The decimal text [begin, end), well formed.  Only values beyond the range
// of doubles need strtod itself, which gives the infinities and zeros the
// user would expect.
double convertDecimal(const char* begin, const char* end) {
  double number = 0.0;
  if (convertShortDecimal(begin, end, &number)) return number;
  if (parseDecimalText(begin, end, &number)) return number;
  std::string copy(begin, end);
  return std::strtod(copy.c_str(), nullptr);
}

constexpr const char* kTokenNames[] = {
    "AND", "APPEND", "COMMENT", "DECLARE", "END", "EQ",     "FALSE", "IF",  "THEN", "ELSE", "GE",
    "GT",  "LE",     "LT",      "NAME",    "NE",  "NUMBER", "OR",    "STRING", "SET", "USE", "TRUE",
};
static_assert(sizeof kTokenNames / sizeof kTokenNames[0] == kTrueToken - kAndToken + 1,
              "one name for each named token from AND to TRUE");

}  // namespace

ExpressionLexer::ExpressionLexer(FieldExpression* source, const char* text, int firstToken)
    : expression(source), cursor(text), value(nullptr), startToken(firstToken) {}

int ExpressionLexer::nextToken() {
  *value = TokenValue{nullptr, 0, 0, nullptr};
  if (startToken != 0) {
    int token = startToken;
    startToken = 0;
    return token;
  }
  for (;;) {
    skipWhiteSpace();
    if (*cursor == '\0') return kEndToken;
    const char* start = cursor;
    int token = scanToken(start);
    if (token == kSkip) continue;
    value->text = start;
    value->length = static_cast<uint16_t>(cursor - start + 1);
    return token;
  }
}

void ExpressionLexer::skipWhiteSpace() {
  while (isWhiteSpace(*cursor)) ++cursor;
}

// A comment ends at a carriage return only: in a text whose lines end with
// line feeds alone, everything after "#" is comment.
void ExpressionLexer::skipComment() {
  while (*cursor != '\0') {
    if (*cursor++ == '\r') return;
  }
}

int ExpressionLexer::scanToken(const char* start) {
  const unsigned char c = static_cast<unsigned char>(*cursor++);
  // A byte above 127 is a token of its own that no rule uses, so the user
  // is told "Syntax error: found char N" instead of having it read as the
  // ASCII character in its low seven bits.
  if (c > 127) return c;
  switch (kClassOf[c]) {
    case kEnd:
      cursor = start;  // later calls stop here again
      return kEndToken;
    case kBlank:
      return kSkip;
    case kComment:
      skipComment();
      return kSkip;
    case kQuote:
      return scanString();
    case kDigit:
      return scanNumber(start);
    case kPoint:
      return isDigit(*cursor) ? scanNumber(start) : '.';
    case kLetter:
      return scanName(start);
    default:
      return scanPunctuation(c);
  }
}

int ExpressionLexer::scanPunctuation(unsigned char c) {
  switch (kClassOf[c]) {
    case kAmpersand:
      return followedBy('&', kAndToken, '&');
    case kBar:
      return followedBy('|', kOrToken, '|');
    case kLess:
      return followedBy('=', kLeToken, kLtToken);
    case kEquals:
      return followedBy('=', kEqToken, '=');
    case kGreater:
      return followedBy('=', kGeToken, kGtToken);
    case kBang:
      // "!=" is the written form of the not-equal comparison.  "!" followed
      // by "=" cannot begin any other valid text, so no text that was valid
      // changes its meaning.
      return followedBy('=', kNeToken, '!');
    default:
      return c;
  }
}

int ExpressionLexer::followedBy(char second, int pairToken, int singleToken) {
  if (*cursor != second) return singleToken;
  ++cursor;
  return pairToken;
}

int ExpressionLexer::scanNumber(const char* start) {
  double number;
  if (start[0] == '0' && isDigit(start[1])) {
    number = scanRadixNumber(start, 8);
  } else if (start[0] == '0' && start[1] == 'x') {
    number = scanRadixNumber(start + 2, 16);
  } else {
    number = scanDecimalNumber(start);
  }
  value->term = ScalarTerm::make(number);
  return kNumberToken;
}

// Every hexadecimal digit character belongs to the token; the value is that
// of its longest prefix of digits valid in `base`, saturating at the largest
// long as the standard conversion does.  The whole text is converted, however
// long, so the value is the one the user wrote.
double ExpressionLexer::scanRadixNumber(const char* digits, int base) {
  const unsigned long long limit = static_cast<unsigned long long>(std::numeric_limits<long>::max());
  unsigned long long total = 0;
  const char* p = digits;
  for (; isHexDigit(*p) && hexDigitValue(*p) < base; ++p) {
    const unsigned d = static_cast<unsigned>(hexDigitValue(*p));
    total = total > (limit - d) / static_cast<unsigned>(base) ? limit : total * static_cast<unsigned>(base) + d;
  }
  while (isHexDigit(*p)) ++p;
  cursor = p;
  return static_cast<double>(total);
}

// Digits, an optional fraction, an optional exponent.  An exponent letter
// without digits makes the number 0, with what was read consumed.  A number
// of any length is converted whole, so its value is the one the user wrote
// rather than that of a cut-off prefix.
double ExpressionLexer::scanDecimalNumber(const char* start) {
  const char* p = start;
  while (isDigit(*p)) ++p;
  if (*p == '.') {
    ++p;
    while (isDigit(*p)) ++p;
  }
  if (*p == 'e' || *p == 'E') {
    const char* exponent = p + 1;
    if (*exponent == '+' || *exponent == '-') ++exponent;
    if (!isDigit(*exponent)) {
      cursor = exponent;
      return 0.0;
    }
    while (isDigit(*exponent)) ++exponent;
    p = exponent;
  }
  cursor = p;
  return convertDecimal(start, p);
}

// Takes numbers of at most kMaxPlainDecimal characters after the sign, the
// same as the writers' plain decimals (core/DecimalText.h), which must be
// texts this reading accepts.
bool ExpressionLexer::readPlainNumber(const char* text, double* value) {
  const char* p = text;
  const bool negative = *p == '-';
  if (*p == '-' || *p == '+') ++p;
  const char* start = p;
  if (p[0] == '0' && (isDigit(p[1]) || p[1] == 'x')) return false;
  bool digits = false;
  for (; isDigit(*p); ++p) digits = true;
  if (*p == '.') {
    for (++p; isDigit(*p); ++p) digits = true;
  }
  if (!digits) return false;
  if (*p == 'e' || *p == 'E') {
    ++p;
    if (*p == '+' || *p == '-') ++p;
    if (!isDigit(*p)) return false;
    while (isDigit(*p)) ++p;
  }
  if (*p != '\0' || static_cast<size_t>(p - start) > kMaxPlainDecimal) return false;
  const double number = convertDecimal(start, p);
  *value = negative ? -number : number;
  return true;
}

// No escapes.  A control character or a byte with the high bit set ends the
// string and is consumed; past 254 characters the next character is
// consumed and, unless it is the closing quote, dropped.
int ExpressionLexer::scanString() {
  char text[kMaxStringLength];
  size_t length = 0;
  for (;;) {
    const char c = *cursor;
    if (c == '\0') break;
    ++cursor;
    if (c == '"' || static_cast<signed char>(c) < 32 || length == kMaxStringLength) break;
    text[length++] = c;
  }
  value->term = StringTerm::make(text, length);
  return kStringToken;
}

// Names are cut at 255 characters; the rest is scanned as further tokens.
int ExpressionLexer::scanName(const char* start) {
  const char* p = cursor;
  while (p - start < kMaxNameLength && isNameChar(*p)) ++p;
  cursor = p;
  const size_t length = static_cast<size_t>(p - start);
  value->term = StringTerm::make(start, length);
  return keywordOrName(start, length);
}

std::string ExpressionLexer::describeToken(int code) {
  char text[32];
  switch (code) {
    case kEndToken:
      return "[end of file]";
    case '\a':
      return "'\\a'";
    case '\b':
      return "'\\b'";
    case '\t':
      return "'\\t'";
    case '\n':
      return "'\\n'";
    case '\v':
      return "'\\v'";
    case '\f':
      return "'\\f'";
    case '\r':
      return "'\\r'";
    case kErrorToken:
      return "[error]";
    default:
      break;
  }
  if (code >= kAndToken && code <= kTrueToken) return kTokenNames[code - kAndToken];
  if (code >= ' ' && code <= '~') {
    std::snprintf(text, sizeof text, "'%c'", code);
  } else {
    std::snprintf(text, sizeof text, "char %d", code);
  }
  return text;
}

}  // namespace lumeric
