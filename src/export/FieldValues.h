// The values of a plain tree's fields as the exporter reads them.  Every
// field keeps its values as texts; these read them through the field
// types' own evaluation and give 0 for anything that is not a finite
// number.
#ifndef LUMERIC_EXPORT_FIELDVALUES_H
#define LUMERIC_EXPORT_FIELDVALUES_H

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"

namespace lumeric {

inline double finiteOrZero(double v) { return std::isfinite(v) ? v : 0.0; }

// A single number field (SFFloat, SFLong, SFBool).
template <class Field>
double numberIn(Field& field) {
  return finiteOrZero(numberOf(field.value));
}

// The N components of a single vector field (SFVec3f, SFColor,
// SFRotation, SFMatrix).
template <int N, class Field>
std::array<double, N> componentsIn(Field& field) {
  double numbers[N];
  numbersOf(field.values, N, numbers);
  std::array<double, N> out{};
  for (int k = 0; k < N; ++k) out[k] = finiteOrZero(numbers[k]);
  return out;
}

// Every number of a list field (MFFloat, MFLong, MFVec3f, MFColor, ...),
// row after row.
template <class Field>
std::vector<double> numbersIn(Field& field) {
  std::vector<double> numbers;
  field.expand(numbers);
  for (double& v : numbers) v = finiteOrZero(v);
  return numbers;
}

// A list of integers (MFLong); values beyond the int range become -2, which
// no index accepts.
template <class Field>
std::vector<int> integersIn(Field& field) {
  std::vector<double> numbers = numbersIn(field);
  std::vector<int> out;
  out.reserve(numbers.size());
  for (double v : numbers) out.push_back(v >= -2147483647.0 && v <= 2147483647.0 ? static_cast<int>(v) : -2);
  return out;
}

// The text of a string field (SFString); empty when it has none.
template <class Field>
std::string textIn(Field& field) {
  StringTerm* string = evaluateString(&field.value);
  return string != nullptr && string->text != nullptr ? std::string(string->text) : std::string();
}

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_FIELDVALUES_H
