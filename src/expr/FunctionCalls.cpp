#include "expr/FunctionCalls.h"

#include "core/MessageDetails.h"
#include "expr/Term.h"
#include "expr/functions/FunctionTables.h"
#include "expr/functions/FunctionLookup.h"
#include "expr/functions/FunctionMessages.h"
#include "expr/functions/Units.h"

namespace lumeric {

namespace {

bool allScalars(Term* const* arguments, int count) {
  for (int k = 0; k < count; ++k) {
    if (asScalar(arguments[k]) == nullptr) return false;
  }
  return true;
}

// The built-in functions, for the hint of "Function F(...) not found".
class FunctionCandidates : public NameCandidates {
 public:
  explicit FunctionCandidates(const char* word) : NameCandidates(kFunction, word) {}
  void collect(std::vector<std::string>& names) const override {
    const FunctionTable table = builtinFunctions();
    for (size_t k = 0; k < table.size; ++k) names.push_back(table.rows[k].name);
  }
};

// What a call gets when no function of its argument count, kinds and name
// exists.  Six arguments that are not all scalars, and twelve arguments,
// fail without a word.
Term* notFound(const char* name, Term* const* arguments, int count, FieldExpression* at) {
  const FunctionCandidates meant(name);
  OfferedCandidates offered(meant);
  if (count == 0) return refuseCall(at, "Function %s() not found", name);
  if (count <= 4 || (count == 6 && allScalars(arguments, count))) {
    return refuseCall(at, "Function %s(...) not found", name);
  }
  return nullptr;
}

}  // namespace

Term* callFunction(const char* name, Term* const* arguments, int count, FieldExpression* at) {
  const FunctionRow* row = findFunction(name, arguments, count);
  if (row == nullptr) return notFound(name, arguments, count, at);
  return row->body(arguments, at);
}

Term* applyUnit(Term* term, const char* unit, FieldExpression* at) { return convertUnit(term, unit, at); }

}  // namespace lumeric
