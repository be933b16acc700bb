#include "fields/QvSFImage.h"

#include <algorithm>

#include "core/QvContext.h"
#include "fields/FieldSupport.h"
#include "reader/QvSceneInput.h"

namespace lumeric {

namespace {

// Keeps a damaged header (a huge size with few pixels after it) from
// reserving memory that the pixels never fill.
constexpr size_t kMaxReserve = size_t{1} << 20;

}  // namespace

void QvSFImage::SetLumericValue(Term*, int, int, FieldExpression*) {
  theContext.reportInFile("Not Implemented - SFImage::SetLumericValue");
}

Term* QvSFImage::GetLumericValue(int, int, FieldExpression*) {
  return theContext.reportInFile("Not Implemented - SFImage::GetLumericValue");
}

// A negative size or more than kMaxComponents components describes no
// image, and the read fails like one whose numbers are missing.
bool QvSFImage::readValue(QvSceneInput* in) {
  int16_t w = 0;
  int16_t h = 0;
  int32_t components = 0;
  if (!in->readShort(w) || !in->readShort(h) || !in->readInteger(components)) return false;
  if (w < 0 || h < 0 || components < 0 || components > kMaxComponents) return false;
  size_t pixels = static_cast<size_t>(w) * static_cast<size_t>(h);
  std::vector<uint8_t> data;
  data.reserve(std::min(pixels * static_cast<size_t>(components), kMaxReserve));
  for (size_t p = 0; p < pixels; ++p) {
    uint32_t pixel = 0;
    if (!in->readUnsigned(pixel)) return false;
    for (int k = components - 1; k >= 0; --k) data.push_back(static_cast<uint8_t>(pixel >> (8 * k)));
  }
  width = static_cast<uint16_t>(w);
  height = static_cast<uint16_t>(h);
  numComponents = components;
  bytes.swap(data);
  return true;
}

// The pixels follow on indented lines, kPixelsPerLine to a line, each one
// number of 2 hexadecimal digits per component ("0x%2.2x" for one
// component up to "0x%8.8x" for four), most significant byte first, so that
// the text reads back to the same bytes.  Pixels without components are
// written 0x00.
void QvSFImage::write(SceneWriter& out) {
  out.character(' ').integer(width).character(' ').integer(height).character(' ').integer(numComponents);
  out.character('\n');
  size_t pixels = static_cast<size_t>(width) * height;
  if (pixels == 0) return;
  static const char kHexDigits[] = "0123456789abcdef";
  size_t perPixel = static_cast<size_t>(numComponents);
  SceneWriter::Deeper deeper(out);
  for (size_t p = 0; p < pixels; ++p) {
    bool lineStart = p % kPixelsPerLine == 0;
    if (lineStart) {
      out.indentation();
    } else {
      out.character(' ');
    }
    out.text("0x");
    if (perPixel == 0) out.text("00");
    for (size_t k = 0; k < perPixel; ++k) {
      size_t index = p * perPixel + k;
      uint8_t byte = index < bytes.size() ? bytes[index] : 0;
      out.character(kHexDigits[byte >> 4]).character(kHexDigits[byte & 15]);
    }
    if (p + 1 == pixels || (p + 1) % kPixelsPerLine == 0) out.character('\n');
  }
}

void QvSFImage::copyFrom(QvSFImage& source) {
  width = source.width;
  height = source.height;
  numComponents = source.numComponents;
  bytes = source.bytes;
}

}  // namespace lumeric
