// Wall: a wall along a path on the ground, written as a Coordinate3 and an
// IndexedFaceSet that both carry the Wall's DEF name, followed by the
// Wall's children, with no Separator around them (the coordinates stay
// current for what follows in the same group).
//
// Declared fields: data (path rows of x and z, required), height and
// elevation (lists whose last number serves for all later points,
// required), width (default 0.1) and placement (the side of the
// thickening by its sign; default -1).
#ifndef LUMERIC_NODES_GENERATORS_QVWALL_H
#define LUMERIC_NODES_GENERATORS_QVWALL_H

#include <memory>

#include "nodes/generators/QvGeneratorNode.h"
#include "nodes/generators/WallMesh.h"

namespace lumeric {

class QvWall : public QvGeneratorNode<QvWall> {
 public:
  QvWall() = default;
  ~QvWall() override;

  static constexpr const char* kClassName = "Wall";
  const char* getClassName() const override { return kClassName; }
  // In place the children are not visited; a copy is made as for every
  // generator.
  void evaluate(QvGroupNode* parentGroup, bool copy) override;
  // Builds the mesh from the field values that hold now (after the
  // statements ran), replacing an earlier one, then binds the children.
  // Missing or unusable fields leave no mesh.
  void bindParents() override;
  // Thickens the mesh and writes it, then the children.  Without a mesh
  // (its fields were missing or of the wrong kind, which was reported
  // where it applies) the Wall writes nothing, not even its children,
  // like a Ball or Connect that cannot be written.
  void write(SceneWriter& out) override;

  // The geometry after the last bindParents, or null.
  const WallMesh* getMesh() const { return mesh.get(); }

 private:
  // Takes width and placement from their fields when they hold numbers.
  void readShape();
  // The mesh from data, height and elevation, or null when one of them is
  // not of its kind.  A data row holds at least x and z; further numbers
  // in a row are ignored, and rows of fewer make no mesh.
  std::unique_ptr<WallMesh> buildMesh();

  QvField* elevationField = nullptr;
  QvField* heightField = nullptr;
  QvField* widthField = nullptr;
  QvField* dataField = nullptr;
  QvField* placementField = nullptr;
  std::unique_ptr<WallMesh> mesh;
  double placement = -1.0;
  double width = 0.1;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_QVWALL_H
