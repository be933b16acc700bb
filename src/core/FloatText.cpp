#include "core/FloatText.h"

#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#if LUMERIC_FLOAT_CHARCONV
#include <charconv>
#include <system_error>
#endif

namespace lumeric {

int formatGeneral6ByPrintf(char* buffer, int size, double value) {
  const int length = std::snprintf(buffer, static_cast<size_t>(size), "%.6g", value);
  return length < size ? length : size - 1;
}

namespace {

bool readsBackAs(const char* text, double value) { return std::strtod(text, nullptr) == value; }
bool readsBackAs(const char* text, float value) { return std::strtof(text, nullptr) == value; }

// The shortest digits that read back as the finite, non-zero `value` and
// their decimal exponent (the value is 0.DIGITS times 10 to exponent+1).
// Of the texts of one length, the correctly rounded one is the nearest;
// when it does not read back, a neighbour one unit away may (the interval
// that reads back is narrower below a power of two), and only one can.
template <typename Number>
void shortestDigits(Number value, int maxDigits, std::string& digits, int& exponent) {
  const double wide = static_cast<double>(value);
  char text[48];
  for (int count = 1; count <= maxDigits; ++count) {
    std::snprintf(text, sizeof text, "%.*e", count - 1, wide);
    std::string mantissa;
    const char* p = text;
    for (; *p != 'e'; ++p) {
      if (*p >= '0' && *p <= '9') mantissa += *p;
    }
    const int e = std::atoi(p + 1);
    unsigned long long rounded = std::strtoull(mantissa.c_str(), nullptr, 10);
    const unsigned long long candidates[] = {rounded, rounded - 1, rounded + 1};
    for (unsigned long long candidate : candidates) {
      std::string candidateDigits = std::to_string(candidate);
      if (candidateDigits.size() != static_cast<size_t>(count)) continue;
      char probe[64];
      std::snprintf(probe, sizeof probe, "%s.%se%d", candidateDigits.substr(0, 1).c_str(),
                    candidateDigits.substr(1).c_str(), e);
      if (readsBackAs(probe, value)) {
        while (candidateDigits.size() > 1 && candidateDigits.back() == '0') candidateDigits.pop_back();
        digits = candidateDigits;
        exponent = e;
        return;
      }
    }
  }
}

template <typename Number>
int formatShortestWith(char* buffer, int size, Number value, int maxDigits) {
  if (!std::isfinite(value) || value == 0) return formatGeneral6ByPrintf(buffer, size, static_cast<double>(value));
  std::string digits;
  int exponent = 0;
  shortestDigits(std::fabs(value), maxDigits, digits, exponent);
  const int count = static_cast<int>(digits.size());
  std::string fixed;
  if (exponent >= count - 1) {
    // A whole number in the fixed form shows its exact value, as "%.0f".
    char whole[400];
    std::snprintf(whole, sizeof whole, "%.0f", std::fabs(static_cast<double>(value)));
    fixed = whole;
  } else if (exponent >= 0) {
    fixed = digits.substr(0, static_cast<size_t>(exponent + 1)) + "." + digits.substr(static_cast<size_t>(exponent + 1));
  } else {
    fixed = "0." + std::string(static_cast<size_t>(-exponent - 1), '0') + digits;
  }
  char tail[16];
  std::snprintf(tail, sizeof tail, "e%c%02d", exponent < 0 ? '-' : '+', exponent < 0 ? -exponent : exponent);
  std::string scientific = digits.substr(0, 1) + (count > 1 ? "." + digits.substr(1) : "") + tail;
  std::string text = (std::signbit(value) ? "-" : "") + (fixed.size() <= scientific.size() ? fixed : scientific);
  std::snprintf(buffer, static_cast<size_t>(size), "%s", text.c_str());
  return static_cast<int>(text.size()) < size ? static_cast<int>(text.size()) : size - 1;
}

}  // namespace

int formatShortestByPrintf(char* buffer, int size, double value) { return formatShortestWith(buffer, size, value, 17); }
int formatShortestByPrintf(char* buffer, int size, float value) { return formatShortestWith(buffer, size, value, 9); }

bool parseDecimalTextByStrtod(const char* begin, const char* end, double* value) {
  // strtod needs a terminated text; a short one stays on the stack.
  char local[64];
  std::string heap;
  const size_t length = static_cast<size_t>(end - begin);
  const char* text = local;
  if (length < sizeof local) {
    std::memcpy(local, begin, length);
    local[length] = '\0';
  } else {
    heap.assign(begin, end);
    text = heap.c_str();
  }
  // from_chars takes no blank and no plus sign in front.
  if (length == 0 || text[0] == '+' || text[0] == ' ') return false;
  char* stop = nullptr;
  errno = 0;
  const double number = std::strtod(text, &stop);
  if (stop != text + length) return false;
  // strtod flags a value below the normal range too; from_chars refuses
  // only what leaves the range of doubles altogether.
  if (errno == ERANGE && (number == 0 || std::isinf(number))) return false;
  *value = number;
  return true;
}

#if LUMERIC_FLOAT_CHARCONV

// to_chars with the general format and a precision is specified to give
// the text of printf's "%.*g", at a fraction of its cost.
int formatGeneral6(char* buffer, int size, double value) {
  auto result = std::to_chars(buffer, buffer + size - 1, value, std::chars_format::general, 6);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

int formatShortest(char* buffer, int size, double value) {
  auto result = std::to_chars(buffer, buffer + size - 1, value);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

int formatShortest(char* buffer, int size, float value) {
  auto result = std::to_chars(buffer, buffer + size - 1, value);
  *result.ptr = '\0';
  return static_cast<int>(result.ptr - buffer);
}

// from_chars rounds exactly as strtod does.
bool parseDecimalText(const char* begin, const char* end, double* value) {
  double number = 0.0;
  std::from_chars_result result = std::from_chars(begin, end, number);
  if (result.ec != std::errc() || result.ptr != end) return false;
  *value = number;
  return true;
}

#else

int formatGeneral6(char* buffer, int size, double value) { return formatGeneral6ByPrintf(buffer, size, value); }

int formatShortest(char* buffer, int size, double value) { return formatShortestByPrintf(buffer, size, value); }
int formatShortest(char* buffer, int size, float value) { return formatShortestByPrintf(buffer, size, value); }

bool parseDecimalText(const char* begin, const char* end, double* value) {
  return parseDecimalTextByStrtod(begin, end, value);
}

#endif

}  // namespace lumeric
