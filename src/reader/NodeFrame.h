// The frame every node writes itself in: the opening line with the optional
// DEF name, the fields one per line, and the closing brace with an empty
// line, indented with tabs by nesting depth.
#ifndef LUMERIC_READER_NODEFRAME_H
#define LUMERIC_READER_NODEFRAME_H

#include <cstdio>

namespace lumeric {

class QvNode;

// "DEF name Class {" or "Class {".
void writeOpeningLine(FILE* out, QvNode* node, const char* className);
// Every field of the node's table: the indented name, then the value.
void writeFieldLines(FILE* out, QvNode* node);
// "}" and an empty line.
void writeClosingLine(FILE* out);

}  // namespace lumeric

#endif  // LUMERIC_READER_NODEFRAME_H
