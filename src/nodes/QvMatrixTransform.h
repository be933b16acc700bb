// A general transformation given as a 4x4 matrix.
#ifndef LUMERIC_NODES_QVMATRIXTRANSFORM_H
#define LUMERIC_NODES_QVMATRIXTRANSFORM_H

#include "fields/QvSFMatrix.h"
#include "nodes/QvStandardNode.h"

namespace lumeric {

class QvMatrixTransform : public QvStandardNode<QvMatrixTransform> {
 public:
  static constexpr const char* kClassName = "MatrixTransform";

  QvMatrixTransform();

  QvSFMatrix matrix;
};

}  // namespace lumeric

#endif  // LUMERIC_NODES_QVMATRIXTRANSFORM_H
