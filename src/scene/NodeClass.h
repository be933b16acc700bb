// What a node class shares among its instances: its field table, built by
// the first constructor of the class in a run and destroyed by the
// end-of-run clean-up, so that the next run builds it again.
#ifndef LUMERIC_SCENE_NODECLASS_H
#define LUMERIC_SCENE_NODECLASS_H

namespace lumeric {

class QvFieldTable;

class NodeClass {
 public:
  explicit NodeClass(const char* name) : name_(name) {}
  NodeClass(const NodeClass&) = delete;
  NodeClass& operator=(const NodeClass&) = delete;

  const char* name() const { return name_; }
  // The class table, or null before the first instance of the run.
  QvFieldTable* table() const { return table_; }
  // Called by each constructor: creates the table when the class has none
  // and tells whether this construction is the class's first instance.
  bool beginInstance();

  // Destroys the tables of every class (end of run).
  static void destroyAllTables();

 private:
  const char* name_;
  QvFieldTable* table_ = nullptr;
  bool registered_ = false;
};

}  // namespace lumeric

#endif  // LUMERIC_SCENE_NODECLASS_H
