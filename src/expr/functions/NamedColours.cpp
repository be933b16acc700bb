#include "expr/functions/NamedColours.h"

#include "core/MessageDetails.h"
#include "expr/functions/FunctionMessages.h"
#include "expr/functions/NameCase.h"

namespace lumeric {

namespace {

struct NamedColour {
  const char* name;
  double red, green, blue;
};

const NamedColour kColours[] = {
    {"Red", 1, 0, 0},          {"Green", 0, 1, 0},          {"Blue", 0, 0, 1},
    {"Yellow", 1, 1, 0},       {"Cyan", 0, 1, 1},           {"Magenta", 1, 0, 1},
    {"Black", 0, 0, 0},        {"White", 1, 1, 1},          {"Grey", 0.5, 0.5, 0.5},
    {"Gray", 0.5, 0.5, 0.5},   {"LightGrey", 0.75, 0.75, 0.75}, {"LightGray", 0.75, 0.75, 0.75},
    {"DarkGrey", 0.25, 0.25, 0.25}, {"DarkGray", 0.25, 0.25, 0.25},
};

// The colour names, for the hint of "Color C not found".
class ColourCandidates : public NameCandidates {
 public:
  explicit ColourCandidates(const char* word) : NameCandidates(kColour, word) {}
  void collect(std::vector<std::string>& names) const override {
    for (const NamedColour& c : kColours) names.push_back(c.name);
  }
};

Term* colourTerm(double red, double green, double blue) {
  VectorTerm* colour = VectorTerm::make(3);
  colour->elements[0] = red;
  colour->elements[1] = green;
  colour->elements[2] = blue;
  return colour;
}

}  // namespace

Term* namedColour(Term* const* arguments, FieldExpression* at) {
  // A string term made from nothing has no text; it names no colour.
  const char* name = textArgument(arguments, 0);
  if (name == nullptr) name = "";
  for (const NamedColour& c : kColours) {
    if (sameNameIgnoringCase(name, c.name)) return colourTerm(c.red, c.green, c.blue);
  }
  const ColourCandidates meant(name);
  OfferedCandidates offered(meant);
  return refuseCall(at, "Color %s not found", name);
}

Term* greyColour(Term* const* arguments, FieldExpression*) {
  ScalarTerm* level = static_cast<ScalarTerm*>(arguments[0]);
  if (level->value < 0.0) level->value = 0.0;
  if (level->value > 1.0) level->value = 1.0;
  const double grey = 1.0 - level->value;
  return colourTerm(grey, grey, grey);
}

}  // namespace lumeric
