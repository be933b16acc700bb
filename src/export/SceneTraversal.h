// The traversal of a plain VRML 1.0 tree in document order that fills an
// ExportScene: grouping nodes save and restore the state as VRML 1.0 says,
// property nodes change it, shapes become meshes placed by nodes, cameras
// and lights become nodes of their own.  A shape met again under the same
// state (through USE) reuses its mesh, as does an equal primitive.
#ifndef LUMERIC_EXPORT_SCENETRAVERSAL_H
#define LUMERIC_EXPORT_SCENETRAVERSAL_H

#include <cstdio>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "export/ExportMessages.h"
#include "export/ExportScene.h"
#include "export/MaterialBinding.h"
#include "export/ExportOptions.h"
#include "export/ShapeContext.h"
#include "export/Textures.h"
#include "export/TraversalState.h"

namespace lumeric {

class QvGroupNode;
class QvNode;
class QvUseStatement;
class QvWWWInline;
enum class NodeKind : int;

class SceneTraversal {
 public:
  // Reads an inlined file's root node into the run the tree belongs to
  // (the tree's owner keeps it); null when nothing could be read.
  using InlineReader = std::function<QvNode*(FILE* file, const char* name)>;

  // `fileName` is the file the tree was read from: inlined files and
  // textures are found relative to its directory.
  SceneTraversal(ExportScene& scene, ExportMessages& messages, const ExportOptions& options,
                 const std::string& fileName, InlineReader readInline);
  void traverse(QvNode* root);

 private:
  using MeshMaker = std::function<ExportMesh(ShapeContext&)>;

  void visit(QvNode* node, TraversalState& state);
  void visitChildren(QvGroupNode* group, TraversalState& state);
  // The DEF names of a subtree that is not shown (a Switch's other
  // children), which later USEs may name.
  void defineNames(QvNode* node);
  bool visitGroup(QvNode* node, NodeKind kind, TraversalState& state);
  bool visitTransformation(QvNode* node, NodeKind kind, TraversalState& state);
  bool visitProperty(QvNode* node, NodeKind kind, TraversalState& state);
  bool visitShape(QvNode* node, NodeKind kind, TraversalState& state);
  bool visitCameraOrLight(QvNode* node, NodeKind kind, TraversalState& state);
  void visitUse(QvUseStatement& use, TraversalState& state);
  void visitInline(QvWWWInline& node, TraversalState& state);
  // Places the mesh of `shape`, made by `make` unless a shape of the same
  // identity was met under the same state.
  void place(QvNode* shape, const std::string& identity, TraversalState& state, const MeshMaker& make);
  std::string nameFor(QvNode* node, const TraversalState& state);
  void addNode(QvNode* node, const TraversalState& state, const Matrix4& matrix, int camera, int light);

  template <class Value, class Make>
  std::shared_ptr<const Value> cached(std::map<const QvNode*, std::shared_ptr<const Value>>& cache, QvNode* node,
                                      Make make);

  ExportScene& scene_;
  ExportMessages& messages_;
  ExportOptions options_;
  InlineReader readInline_;
  MaterialTable materials_;
  TextureLoader textures_;
  // The directory of the file being traversed (empty or ending in "/").
  std::vector<std::string> directories_;
  // DEF names in force, by name: the last node so named before here.
  std::map<std::string, QvNode*> names_;
  // Meshes made, by shape identity and state.
  std::unordered_map<std::string, int> meshes_;
  std::map<const QvNode*, std::shared_ptr<const MaterialValues>> materialValues_;
  std::map<const QvNode*, std::shared_ptr<const Points>> points_;
  // Inlined files: their roots by path, those being traversed, their names.
  std::map<std::string, QvNode*> inlineRoots_;
  std::set<std::string> inlining_;
  std::deque<std::string> inlineNames_;
  // The nodes being visited, outermost first.
  std::vector<const QvNode*> path_;
  long visits_ = 0;
  bool budgetSpent_ = false;
  bool textWarned_ = false;
};

}  // namespace lumeric

#endif  // LUMERIC_EXPORT_SCENETRAVERSAL_H
