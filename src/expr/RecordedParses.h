// The recorded parses (expr/ParseRecording.h) of the texts evaluated
// lately, in a table of fixed size indexed by a hash of the text: a text
// whose place another takes is simply recorded again when it comes back.
// The table depends on the texts alone, so it is kept from run to run.
#ifndef LUMERIC_EXPR_RECORDEDPARSES_H
#define LUMERIC_EXPR_RECORDEDPARSES_H

#include <cstddef>

namespace lumeric {

struct ParseContext;

// Parses the context's text, `text` of `length` characters, with
// runExpressionParser or by replaying its recorded parse; the status is the
// parser's.  Statements that start with a start token are always parsed.
int parseOrReplay(ParseContext* context, const char* text, size_t length);

}  // namespace lumeric

#endif  // LUMERIC_EXPR_RECORDEDPARSES_H
