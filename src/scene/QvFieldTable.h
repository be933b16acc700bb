// The ordered field names of a node class (or of one node, for classes whose
// fields are declared in the file) with the class's enumeration tables.
#ifndef LUMERIC_SCENE_QVFIELDTABLE_H
#define LUMERIC_SCENE_QVFIELDTABLE_H

#include <cstddef>
#include <cstdio>
#include <vector>

#include "core/QvAtom.h"

namespace lumeric {

class QvField;
class QvNode;
class SceneWriter;

class QvFieldTable {
 public:
  // A class table records where each field sits inside the node, so one
  // entry finds the field of every instance.  A table that owns its fields
  // belongs to one node and holds the fields themselves.
  explicit QvFieldTable(bool ownsFields = false) : ownsFields_(ownsFields) {}
  ~QvFieldTable();
  QvFieldTable(const QvFieldTable&) = delete;
  QvFieldTable& operator=(const QvFieldTable&) = delete;

  void addField(QvNode* node, const char* name, QvField* field);
  void addField(QvNode* node, QvAtom name, QvField* field);
  // Appends (value, valueName) to the enumeration `typeName`, creating it.
  void addEnumValue(const char* typeName, const char* valueName, int value);
  // The enumeration's arrays (shared, owned by the table), or count 0.
  void getEnumData(const char* typeName, int& count, const int*& values, const QvAtom*& names) const;

  int getNumFields() const { return static_cast<int>(fields_.size()); }
  // Room for `count` fields in all (a copy knows how many it will add).
  void reserve(int count) { fields_.reserve(static_cast<size_t>(count)); }
  QvAtom getFieldName(int index) const { return fields_[index].name; }
  // The field at entry `index` of `node`, after attachNode(node).
  QvField* getField(QvNode* node, int index) const;
  // The first field named `name`, after attachNode(node), or null.
  QvField* findField(QvNode* node, QvAtom name) const;
  // The same by text: a table holds a few names, and comparing them costs
  // less than interning `name` (generators look up their fields every time
  // they are written).
  QvField* findField(QvNode* node, const char* name) const;
  int findIndex(QvAtom name) const;
  bool ownsFields() const { return ownsFields_; }

  // Whether `node` may declare its fields: it is not built in and has
  // none yet.
  bool newFieldsAllowed(QvNode* node) const;
  // A field of the named type added under `name`, for a declaration read
  // in the file; false when the type is unknown or the name empty.
  bool createDeclaredField(QvNode* node, QvAtom typeName, QvAtom name);
  // Each field as an indented name and its value.
  void writeFieldLines(SceneWriter& out, QvNode* node);
  // " [ T n, ... ]" and then writeFieldLines.
  void writeSpecsAndValues(SceneWriter& out, QvNode* node);

 private:
  // Every node with declared fields has a table, so an entry and the table
  // are kept small: an entry holds one of the two places, and only class
  // tables have enumerations, chained newest first from one pointer.
  struct Entry {
    QvAtom name;
    union {
      std::ptrdiff_t offset;  // class tables: the field's place in the node
      QvField* field;         // owning tables: the field itself
    };
  };
  struct Enumeration {
    QvAtom typeName;
    std::vector<int> values;
    std::vector<QvAtom> names;
    Enumeration* next;
  };
  std::vector<Entry> fields_;
  Enumeration* enums_ = nullptr;
  bool ownsFields_;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_QVFIELDTABLE_H
