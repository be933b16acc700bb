// Reading nodes and statements: the optional DEF or VARNAME prefix, the
// type name, the braces and the body.  The first read error ends reading;
// every node read before it stays in the tree.
#ifndef LUMERIC_READER_NODEREADER_H
#define LUMERIC_READER_NODEREADER_H

#include "core/QvAtom.h"

namespace lumeric {

class QvGroupNode;
class QvNode;
class QvSceneInput;

// Reads the root node of a file; only the first node is read.
bool readScene(QvSceneInput* in, QvNode*& root);
// Reads one node or statement.  `node` is null when the next thing is not a
// node (a closing brace, a lower-case word, NULL, the end of the file).  On
// failure `node` may hold the node that failed, with no reference taken:
// pass it to discardNode.
bool readNode(QvSceneInput* in, QvNode*& node);
// Destroys a node that nobody took a reference on.
void discardNode(QvNode* node);
// The body of a node without children: a field specification, then field
// values, an unknown field name being an error.
bool readLeafBody(QvSceneInput* in, QvNode* node);
// The body of a group: a field specification when the class is not built
// in, field values (stopping at the first name that is no field), then the
// children.
bool readGroupBody(QvSceneInput* in, QvGroupNode* group);
// Reads nodes into `group` until something that is not a node follows.
bool readChildren(QvSceneInput* in, QvGroupNode* group);
// The node factory with the unknown-class rule; reports unknown classes.
QvNode* createNode(QvSceneInput* in, QvAtom typeName, int line);
// After a statement keyword: the next word must not be "fields" (reports
// "Cannot use a fields specifications with this node" and fails); any other
// word is given back.
bool refuseFieldSpecification(QvSceneInput* in);
// Skips to the closing brace of the current node (counting nested braces).
void skipToClosingBrace(QvSceneInput* in);

}  // namespace lumeric

#endif  // LUMERIC_READER_NODEREADER_H
