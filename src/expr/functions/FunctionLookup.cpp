#include "expr/functions/FunctionLookup.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <vector>

#include "expr/functions/FunctionTables.h"
#include "expr/functions/NameCase.h"

namespace lumeric {

namespace {

// Longer names than this name no function.
constexpr size_t kNameSize = 24;

// The argument kinds of a call as one number: three bits per argument, the
// first argument highest.  Kinds are never 0, so calls of different counts
// never share a signature.
using Signature = uint64_t;

Signature signatureOf(const char* kinds) {
  Signature signature = 0;
  for (; *kinds != '\0'; ++kinds) {
    const char* letters = " tsvm";  // position = term kind
    signature = signature << 3 | static_cast<Signature>(std::strchr(letters, *kinds) - letters);
  }
  return signature;
}

Signature signatureOf(Term* const* arguments, int count) {
  Signature signature = 0;
  for (int k = 0; k < count; ++k) signature = signature << 3 | static_cast<Signature>(arguments[k]->kind);
  return signature;
}

struct Entry {
  Signature signature;
  char name[kNameSize];  // lower case
  const FunctionRow* row;
};

struct Key {
  Signature signature;
  const char* name;  // lower case
};

bool before(const Entry& e, const Key& key) {
  return e.signature != key.signature ? e.signature < key.signature : std::strcmp(e.name, key.name) < 0;
}

// The rows ordered by signature, then by lower-cased name, so that a call
// finds its row by bisection.
std::vector<Entry> buildIndex() {
  const FunctionTable table = builtinFunctions();
  std::vector<Entry> index(table.size);
  for (size_t k = 0; k < table.size; ++k) {
    index[k].signature = signatureOf(table.rows[k].kinds);
    lowerCaseInto(table.rows[k].name, index[k].name, kNameSize);
    index[k].row = &table.rows[k];
  }
  std::sort(index.begin(), index.end(),
            [](const Entry& a, const Entry& b) { return before(a, Key{b.signature, b.name}); });
  return index;
}

}  // namespace

const FunctionRow* findFunction(const char* name, Term* const* arguments, int count) {
  static const std::vector<Entry> index = buildIndex();
  char lowered[kNameSize];
  if (!lowerCaseInto(name, lowered, kNameSize)) return nullptr;
  const Key key{signatureOf(arguments, count), lowered};
  auto found = std::lower_bound(index.begin(), index.end(), key, before);
  if (found == index.end() || found->signature != key.signature || std::strcmp(found->name, lowered) != 0) {
    return nullptr;
  }
  return found->row;
}

}  // namespace lumeric
