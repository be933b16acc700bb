// The base of every node: reference counting, the DEF name, the position the
// node was read at, and the virtual operations every node class provides.
#ifndef LUMERIC_SCENE_QVNODE_H
#define LUMERIC_SCENE_QVNODE_H

#include <cstdint>
#include <cstdio>

#include "core/QvAtom.h"

namespace lumeric {

class FieldExpression;
class QvFieldTable;
class QvGroupNode;
class QvSceneInput;
class SceneWriter;

class QvNode {
 public:
  QvNode() = default;
  // Removes the node's name from the registry and frees its name expression.
  virtual ~QvNode();
  QvNode(const QvNode&) = delete;
  QvNode& operator=(const QvNode&) = delete;

  // The field table of the node's class (or of the node itself for classes
  // whose fields are declared in the file); null for statements.
  virtual QvFieldTable* getFieldTable() = 0;
  // The evaluation pass.  With `copy` set the node adds an evaluated copy of
  // itself to `parentGroup`; otherwise it evaluates in place.  Call sites that
  // know which they want use evaluateInPlace or copyInto.
  virtual void evaluate(QvGroupNode* parentGroup, bool copy) = 0;
  // Evaluates the node where it stands.
  void evaluateInPlace() { evaluate(nullptr, false); }
  // Adds an evaluated copy of the node (and of its subtree) to `target`.
  void copyInto(QvGroupNode* target) { evaluate(target, true); }
  // Records the enclosing node (the node being visited, NodeVisit.h).
  virtual void bindParents();
  // Writes the node as VRML 1.0 text.
  virtual void write(SceneWriter& out) = 0;
  // The pass of CheckSyntax: visits fields and children, evaluates nothing.
  virtual void check();
  // Reads the node's body after its opening brace (or, for statements,
  // after the keyword).  Leaves read a field specification, then field
  // values with unknown names being errors (reader/NodeReader.h has the
  // readings every class is built from).
  virtual bool readInstance(QvSceneInput* in) = 0;

  // The class name as read and written ("Cube", "LOOP", ...).
  virtual const char* getClassName() const = 0;
  // True for nodes that hold children (QvGroupNode and its classes).
  virtual bool isGroup() const { return false; }

  void ref() { ++refCount; }
  // Drops one reference; the node is destroyed when none is left.
  void unref();

  bool hasName() const;
  // The DEF name: the value of the VARNAME expression when there is one
  // (null when it is not a string), else the name read or given.
  const char* getName();
  // The DEF name before repair: the text the VARNAME expression gives, or
  // the name read or given.  Copies are entered in the DEF table under it.
  const char* evaluatedName();
  // Gives the node a name (repairing characters a name cannot hold) and
  // registers it; see the node reader for the duplicate-name warning.
  void setName(QvAtom newName, bool nameWasDefined = false);
  QvAtom getNameAtom() const { return name; }
  // The name the node is written with: null when it has none, or when its
  // computed name gives no text (its expression has reported why).
  const char* writtenName() { return hasName() ? getName() : nullptr; }

  // Takes ownership of a VARNAME expression.
  void setNameExpression(FieldExpression* expression);
  FieldExpression* getNameExpression() const { return nameExpression; }

  // 1 for classes whose fields are fixed by the class; 0 where a file may
  // declare the fields (unknown nodes, statements, INCLUDE), which lets the
  // reader accept a fields specification.
  int32_t isBuiltIn = 1;
  // The enclosing node, recorded by bindParents and by the evaluation pass;
  // not a reference (the parent owns this node, never the other way).
  QvNode* parent = nullptr;
  // The line the node's class name was read at; -1 for nodes made by the
  // program.
  int32_t line = -1;
  // A copy keeps the file of the node it was made from, but its messages
  // name only the line (the details of a message tell the file).
  bool isCopy = false;
  // The file the node was read from (the scene's or an included one's);
  // empty for nodes made by the program.
  QvAtom fileName;
  // References held by groups, the DEF table and NodeRef holders; unref
  // deletes the node when it falls to zero.
  int32_t refCount = 0;
  // Where the node's entry is in the registry of named nodes (-1: none).
  int32_t registrySlot = -1;

 protected:
  // The leaf pattern of evaluate(): record the parent, and when copying add
  // an evaluated copy (made by newInstance and the class table) to
  // `parentGroup`.
  void evaluateLeaf(QvGroupNode* parentGroup, bool copy);
  // A node of the same class: with its constructor defaults, or, for a
  // node whose fields are its own, with evaluated clones of them.
  virtual QvNode* newInstance() { return nullptr; }
  // Names the copy as this node is named, gives it this node's line and
  // copies every field of the class table with its evaluated value.
  void initCopy(QvNode* copy);
  // Gives `copy` this node's line and file, marked as a copy's.
  void copyPlaceInto(QvNode* copy) const;
  // check() of every field of the node's table.
  void checkFields();
  // Every field of the node's table: the indented name, then the value.
  void writeFields(SceneWriter& out);

 private:
  // The VARNAME expression that computes the DEF name; owned, may be null.
  FieldExpression* nameExpression = nullptr;
  // The name read or given; empty when the node has none.
  QvAtom name;
};

// Keeps a reference on a node for the lifetime of the holder.
class NodeRef {
 public:
  explicit NodeRef(QvNode* node) : node_(node) {
    if (node_ != nullptr) node_->ref();
  }
  ~NodeRef() {
    if (node_ != nullptr) node_->unref();
  }
  NodeRef(const NodeRef&) = delete;
  NodeRef& operator=(const NodeRef&) = delete;
  QvNode* get() const { return node_; }

 private:
  QvNode* node_;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVNODE_H
