// A table of node classes by name, as the node factory uses it.
#ifndef LUMERIC_SCENE_NODECLASSTABLE_H
#define LUMERIC_SCENE_NODECLASSTABLE_H

#include <cstring>
#include <string>
#include <vector>

namespace lumeric {

class QvNode;

struct NodeClassEntry {
  const char* name;
  QvNode* (*create)();
};

template <class Node>
QvNode* createNodeOf() {
  return new Node();
}

// The row of a class that states its name in `kClassName`, so that the
// name is written once, in the class.
template <class Node>
constexpr NodeClassEntry classEntry() {
  return {Node::kClassName, createNodeOf<Node>};
}

// A new node of the class named `name` (compared exactly), or null.
template <size_t N>
QvNode* createFromTable(const NodeClassEntry (&table)[N], const char* name) {
  for (const NodeClassEntry& entry : table) {
    if (std::strcmp(entry.name, name) == 0) return entry.create();
  }
  return nullptr;
}

// Appends the name of every class of `table`.
template <size_t N>
void collectClassNames(const NodeClassEntry (&table)[N], std::vector<std::string>& names) {
  for (const NodeClassEntry& entry : table) names.push_back(entry.name);
}

}  // namespace lumeric

#endif  // LUMERIC_SCENE_NODECLASSTABLE_H
