// SFImage: width, height, number of components and the pixel bytes; read
// as three numbers and one number per pixel whose bytes (as many as there
// are components) are taken most significant first.
#ifndef LUMERIC_FIELDS_QVSFIMAGE_H
#define LUMERIC_FIELDS_QVSFIMAGE_H

#include <cstdint>
#include <vector>

#include "fields/CopyableField.h"

namespace lumeric {

class QvSFImage : public CopyableField<QvSFImage, QvSingleField> {
 public:
  // Pixels written on one line.
  static constexpr int kPixelsPerLine = 8;
  // The most components a pixel can have (one byte each, from one 32-bit
  // number).
  static constexpr int kMaxComponents = 4;

  static constexpr const char* kTypeName = "SFImage";
  const char* getTypeName() const override { return kTypeName; }
  // Not available for images: report in the file; the get gives null.
  void SetLumericValue(Term* value, int i, int j, FieldExpression* at) override;
  Term* GetLumericValue(int i, int j, FieldExpression* at) override;
  void write(SceneWriter& out) override;
  bool readValue(QvSceneInput* in) override;

  void copyFrom(QvSFImage& source);

  uint16_t width = 0;
  uint16_t height = 0;
  int32_t numComponents = 0;
  std::vector<uint8_t> bytes;  // width x height x numComponents
};

}  // namespace lumeric

#endif  // LUMERIC_FIELDS_QVSFIMAGE_H
