// The field bases.  A field keeps the source text of each value component in
// a FieldExpression and evaluates it whenever the value is needed; values
// that come from the expression language are stored back as text.
#ifndef LUMERIC_SCENE_QVFIELD_H
#define LUMERIC_SCENE_QVFIELD_H

#include <cstdint>
#include <cstdio>


namespace lumeric {

class FieldExpression;
class QvNode;
class QvSceneInput;
class SceneWriter;
struct Term;

class QvField {
 public:
  QvField() = default;
  virtual ~QvField() = default;
  QvField(const QvField&) = delete;
  QvField& operator=(const QvField&) = delete;

  // Multiple-valued types: room for `count` values, growth step `growBy`.
  // Single-valued types ignore it.
  virtual void setCapacity(int count, int growBy);
  virtual const char* getTypeName() const = 0;
  // Adds values at the end (APPEND).  Single-valued types refuse with
  // "Cannot append values to this field" at `where`.
  virtual void appendValue(Term* value, FieldExpression* where) = 0;
  // Stores a value: i and j select an element and a component, -1 meaning
  // "not given".  Messages go to `where`.
  virtual void SetLumericValue(Term* value, int i, int j, FieldExpression* where) = 0;
  // A newly made term holding the selected value, or null after a message.
  virtual Term* GetLumericValue(int i, int j, FieldExpression* where) = 0;
  // Writes the value text that follows the field name: it starts with a
  // blank and, when a value could be formed, ends the line.
  virtual void write(SceneWriter& out) = 0;
  // A new field of the same type holding this field's value as evaluated
  // now, stored as value texts.  The caller owns it.
  virtual QvField* clone() = 0;
  // Gives every value expression without owner this node (and its line).
  virtual void attachNode(QvNode* node);
  // The check pass; accepts every value and evaluates nothing.
  virtual bool check();
  // Reads the field's value from the input.
  virtual bool readValue(QvSceneInput* in) = 0;
  // Fills this field with the evaluated value of `source`, which is of the
  // same type (the copy a node makes of itself).
  virtual void copyValueFrom(QvField* source) = 0;

  void setContainer(QvNode* node) { container = node; }

  // 1 when the value was read as one expression text for the whole field
  // (`=...`) instead of one text per component: its values exist only when
  // evaluated, so element SETs and APPEND refuse it.  Copies and -D values
  // hold plain values again.
  int32_t isExpression = 0;
  // The node whose field this is, named in the field's messages; not owned,
  // null for fields not in a node (clones before they are placed).
  QvNode* container = nullptr;
};

class QvSingleField : public QvField {
 public:
  void appendValue(Term* value, FieldExpression* where) override;
};

class QvMultiField : public QvField {
 public:
  // Calls allocValues(count) unless the field already holds `count` values.
  virtual void setNum(int count);
  // Makes room for `count` values and sets num to it.
  virtual void allocValues(int count) = 0;
  // Reads the value at `index` (already allocated).
  virtual bool readElement(QvSceneInput* in, int index) = 0;

  // The number of values held.
  int32_t num = 0;
  // The number of values there is room for (at least num).
  int32_t capacity = 0;
  // How many values the room grows by when a value is added past capacity.
  int32_t growBy = 10;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVFIELD_H
