// The context's message operation at the reading position: "Line %d: "
// with the line the input has reached, after "File \"%s\" " when a file is
// being read.  It returns a Failure (false, or a null pointer), so that a
// read failure is one line: `return readError(in, "Expected '{'");`.
#ifndef LUMERIC_READER_READERRORS_H
#define LUMERIC_READER_READERRORS_H

#include "core/Failure.h"

namespace lumeric {

class QvSceneInput;

// A null input counts as line 0.
Failure readError(const QvSceneInput* in, const char* format, ...) __attribute__((format(printf, 2, 3)));

}  // namespace lumeric

#endif  // LUMERIC_READER_READERRORS_H
