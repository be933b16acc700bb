#include "writer/SceneWriter.h"

#include <cerrno>
#include <cmath>
#include <cstdarg>
#include <cstring>
#include <string>

#include "core/DecimalText.h"
#include "core/NumberText.h"
#include "core/LastingState.h"

namespace lumeric {

SceneWriter& SceneWriter::text(const char* s) { return text(s, std::strlen(s)); }

SceneWriter& SceneWriter::text(const char* s, size_t length) {
  if (length > sizeof buffer_ / 2) {
    flush();
    put(s, length);
    return *this;
  }
  makeRoom(length);
  std::memcpy(buffer_ + used_, s, length);
  used_ += length;
  return *this;
}

SceneWriter& SceneWriter::number(double v) {
  // "inf" and "nan" load in no reader; whoever writes a value reports it
  // through finiteAt() before it gets here.
  if (!std::isfinite(v)) v = 0;
  makeRoom(kNumberTextSize);
  used_ += static_cast<size_t>(formatNumber(buffer_ + used_, v));
  return *this;
}

double roundToPrecision(double v) {
  const double q = precisionQuantum;
  if (!(q > 0)) return v;
  // Values too large for the step keep their own digits rather than
  // overflow to infinity.
  const double steps = v / q;
  if (!std::isfinite(steps)) return v;
  const double r = std::round(steps) * q;
  return std::isfinite(r) ? r : v;
}

SceneWriter& SceneWriter::rounded(double v) { return number(roundToPrecision(v)); }

int SceneWriter::stepDecimals() {
  const double q = precisionQuantum;
  if (q == lastStep_) return lastStepDecimals_;
  static const double kSteps[] = {1,    1e-1, 1e-2,  1e-3,  1e-4,  1e-5,  1e-6,  1e-7,
                                  1e-8, 1e-9, 1e-10, 1e-11, 1e-12, 1e-13, 1e-14, 1e-15};
  int decimals = q > 0 ? kNoDecimals : -1;
  for (int d = 0; d < 16 && decimals == kNoDecimals; ++d) {
    if (q == kSteps[d]) decimals = d;
  }
  lastStep_ = q;
  lastStepDecimals_ = decimals;
  return decimals;
}

SceneWriter& SceneWriter::decimal(const PlainDecimal& text, bool round) {
  const int decimals = round ? stepDecimals() : -1;
  if (decimals != kNoDecimals) {
    makeRoom(kNumberTextSize);
    if (int written = roundDecimalText(text, decimals, buffer_ + used_)) {
      used_ += static_cast<size_t>(written);
      return *this;
    }
  }
  // The digits left it open: the value decides, as for any number.
  const double v = plainDecimalValue(text);
  return round ? rounded(v) : number(v);
}

SceneWriter& SceneWriter::integer(long v) {
  makeRoom(kNumberTextSize);
  used_ += static_cast<size_t>(formatInteger(buffer_ + used_, v));
  return *this;
}

void SceneWriter::formatted(const char* format, va_list args) {
  // Most lines are fixed texts, and most formatted ones are short.
  if (std::strchr(format, '%') == nullptr) {
    text(format);
    return;
  }
  va_list again;
  va_copy(again, args);
  char shortText[256];
  int length = std::vsnprintf(shortText, sizeof shortText, format, args);
  if (length > 0 && static_cast<size_t>(length) < sizeof shortText) {
    text(shortText);
  } else if (length > 0) {
    std::string longText(static_cast<size_t>(length), '\0');
    std::vsnprintf(&longText[0], longText.size() + 1, format, again);
    text(longText.c_str());
  }
  va_end(again);
}

SceneWriter& SceneWriter::format(const char* format, ...) {
  va_list args;
  va_start(args, format);
  formatted(format, args);
  va_end(args);
  return *this;
}

SceneWriter& SceneWriter::indentation() {
  for (int k = 0; k < level_; ++k) character('\t');
  return *this;
}

SceneWriter& SceneWriter::line(const char* format, ...) {
  indentation();
  va_list args;
  va_start(args, format);
  formatted(format, args);
  va_end(args);
  return *this;
}

void SceneWriter::openNode(const char* name, const char* className) {
  indentation();
  if (name != nullptr && name[0] != '\0') text("DEF ").text(name).character(' ');
  text(className).text(" {\n");
  ++level_;
  ++nodesOpened_;
}

void SceneWriter::closeNode(After after) {
  --level_;
  line(after == After::kEmptyLine ? "}\n\n" : "}\n");
}

void SceneWriter::flush() {
  if (used_ > 0) put(buffer_, used_);
  used_ = 0;
}

void SceneWriter::put(const char* s, size_t length) {
  errno = 0;
  if (std::fwrite(s, 1, length, stream_) != length && writeError_ == 0) writeError_ = errno != 0 ? errno : EIO;
}

}  // namespace lumeric
