// A table of node classes by name, as the node factory uses it.
#ifndef LUMERIC_SCENE_NODECLASSTABLE_H
#define LUMERIC_SCENE_NODECLASSTABLE_H

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
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

// The rows of a table by name, for the reader, which asks for a class at
// every node it reads.
class NodeClassIndex {
 public:
  template <size_t N>
  explicit NodeClassIndex(const NodeClassEntry (&table)[N]) {
    for (const NodeClassEntry& entry : table) creators_.emplace(entry.name, entry.create);
  }

  // A new node of the class named `name` (compared exactly), or null.
  QvNode* create(const char* name) const {
    auto found = creators_.find(name);
    return found == creators_.end() ? nullptr : found->second();
  }

 private:
  std::unordered_map<std::string_view, QvNode* (*)()> creators_;
};

// Appends the name of every class of `table`.
template <size_t N>
void collectClassNames(const NodeClassEntry (&table)[N], std::vector<std::string>& names) {
  for (const NodeClassEntry& entry : table) names.push_back(entry.name);
}

}  // namespace lumeric

#endif  // LUMERIC_SCENE_NODECLASSTABLE_H
