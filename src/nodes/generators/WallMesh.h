// The geometry of a Wall: points and four-sided faces, each list in the
// order of creation.  A path of points on the ground becomes a band of
// faces between a bottom and a top line; thicken() turns the band into a
// solid of a given width on one side.
#ifndef LUMERIC_NODES_GENERATORS_WALLMESH_H
#define LUMERIC_NODES_GENERATORS_WALLMESH_H

#include <cstdint>
#include <deque>
#include <vector>

namespace lumeric {

struct WallPoint {
  double x = 0;
  double y = 0;
  double z = 0;
  // Assigned when the point is written as part of a Coordinate3.
  int32_t outputIndex = 0;
  // Neighbours along the path (bottom to bottom, top to top), or null.
  WallPoint* previous = nullptr;
  WallPoint* next = nullptr;
  // The shifted copy of a path point, or the path point of a shifted copy.
  WallPoint* partner = nullptr;
};

struct WallFace {
  WallPoint* corners[4];
};

// A list of numbers of which the last serves for every later index.
struct RepeatedNumbers {
  const double* values = nullptr;
  int count = 0;

  // values[min(i, count - 1)], or `empty` when there are none.
  double at(int i, double empty) const { return count == 0 ? empty : values[i < count ? i : count - 1]; }
};

class WallMesh {
 public:
  // A deque keeps every point where it is while more are appended, so
  // points and faces refer to each other by pointer.
  using PointList = std::deque<WallPoint>;
  using FaceList = std::vector<WallFace>;

  WallMesh() = default;
  WallMesh(const WallMesh&) = delete;
  WallMesh& operator=(const WallMesh&) = delete;

  // Builds the band along a path of `rows` points read from `path`, row
  // after row of `columns` numbers (at least two: x, then z).  Heights
  // default to 1 and elevations to 0.  A path whose last point equals its
  // first is closed into a ring; fewer than two rows leave the mesh empty.
  // Must be called on an empty mesh.
  void build(const double* path, int rows, int columns, RepeatedNumbers heights, RepeatedNumbers elevations);

  // Adds the shifted twin of every face there is now, at distance `width`
  // on the side `placement` (its sign counts; 0 does nothing), and the four
  // faces that close each gap.  Corners are mitred; the width is not
  // stretched at corners too flat for the current PRECISION step.
  void thicken(double placement, double width);

  PointList& points() { return points_; }
  const PointList& points() const { return points_; }
  const FaceList& faces() const { return faces_; }

 private:
  WallPoint* addPoint(double x, double y, double z);
  void addFace(WallPoint* c0, WallPoint* c1, WallPoint* c2, WallPoint* c3);
  // The copy of path point `q` moved sideways, made q's partner.
  WallPoint* shiftedPoint(WallPoint* q, double placement, double width);

  PointList points_;
  FaceList faces_;
};

// The horizontal unit vector at right angles to the segment from `from` to
// `to`, times `f`, as (x, z); (-f, 0) when the two points share x and z.
// For a segment towards +x and f = 1 it points towards +z.
void sideNormal(const WallPoint& from, const WallPoint& to, double f, double normal[2]);

}  // namespace lumeric

#endif  // LUMERIC_NODES_GENERATORS_WALLMESH_H
