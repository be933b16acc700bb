// The values of a plain tree's fields as the exporter reads them.  Every
// field keeps its values as texts; these read them through the field
// types' own evaluation and give 0 for anything that is not a finite
// number.
#ifndef LUMERIC_EXPORT_FIELDVALUES_H
#define LUMERIC_EXPORT_FIELDVALUES_H

#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "expr/Evaluation.h"
#include "fields/FieldSupport.h"
#include "scene/FieldExpression.h"

namespace lumeric {

inline double finiteOrZero(double v) { return std::isfinite(v) ? v : 0.0; }

// One value text as a number: a plain number is read at once, anything
// else (TRUE, an expression) through the expression language.
inline double numberIn(FieldExpression& text) {
  const char* t = text.text();
  if (t != nullptr && *t != '\0' && !std::isspace(static_cast<unsigned char>(*t))) {
    char* end = nullptr;
    const double v = std::strtod(t, &end);
    if (end != t && *end == '\0') return finiteOrZero(v);
  }
  return finiteOrZero(numberOf(text));
}

// A single number field (SFFloat, SFLong, SFBool).
template <class Field>
double numberIn(Field& field) {
  return numberIn(field.value);
}

// The N components of a single vector field (SFVec3f, SFColor,
// SFRotation, SFMatrix).
template <int N, class Field>
std::array<double, N> componentsIn(Field& field) {
  std::array<double, N> out{};
  for (int k = 0; k < N; ++k) out[k] = numberIn(field.values[k]);
  return out;
}

// Every number of a list field (MFFloat, MFLong, MFVec3f, MFColor, ...),
// row after row.
template <class Field>
std::vector<double> numbersIn(Field& field) {
  std::vector<double> numbers;
  if (field.isExpression) {
    field.expand(numbers);
    for (double& v : numbers) v = finiteOrZero(v);
    return numbers;
  }
  const int width = field.width();
  numbers.reserve(static_cast<size_t>(field.num) * static_cast<size_t>(width));
  for (int i = 0; i < field.num; ++i) {
    FieldExpression* element = field.element(i);
    for (int k = 0; k < width; ++k) numbers.push_back(numberIn(element[k]));
  }
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
