// The exact text of the generated standard nodes.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

#include "core/RunState.h"
#include "nodes/generators/GeometryWriter.h"
#include "support/RecordingView.h"

namespace lumeric {
namespace {

class GeometryWriterTest : public RecordedTest {
 protected:
  void SetUp() override {
    RecordedTest::SetUp();
    savedQuantum_ = precisionQuantum;
    precisionQuantum = 0.0001;
    stream_ = open_memstream(&text_, &size_);
    out_ = std::make_unique<SceneWriter>(stream_);
  }
  void TearDown() override {
    out_.reset();
    if (stream_ != nullptr) std::fclose(stream_);
    std::free(text_);
    precisionQuantum = savedQuantum_;
    RecordedTest::TearDown();
  }
  std::string written() {
    out_->flush();
    std::fflush(stream_);
    return std::string(text_, size_);
  }

  SceneWriter& out() { return *out_; }
  GeometryOutput to() { return GeometryOutput{*out_, nullptr}; }

 private:
  FILE* stream_ = nullptr;
  std::unique_ptr<SceneWriter> out_;
  char* text_ = nullptr;
  size_t size_ = 0;
  double savedQuantum_ = 0;
};

TEST_F(GeometryWriterTest, SphereRadiusFollowsThePrecisionStep) {
  writeSphere(to(), "", 0.123456);
  precisionQuantum = 0;
  writeSphere(to(), "S", 0.123456);
  EXPECT_EQ(written(), "Sphere {\n\tradius 0.1235\n}\nDEF S Sphere {\n\tradius 0.123456\n}\n");
  EXPECT_EQ(out().level(), 0);
}

TEST_F(GeometryWriterTest, TransformWritesOnlyTheArraysGiven) {
  const double translation[3] = {1, 2, 3};
  const double rotation[4] = {0, 0, -1, 1.5707963};
  writeTransform(to(), "", translation, rotation, nullptr, nullptr, nullptr);
  EXPECT_EQ(written(), "Transform {\n\ttranslation 1 2 3\n\trotation 0 0 -1  1.5708\n}\n");
}

TEST_F(GeometryWriterTest, CylinderWritesPartsOnlyWhenGiven) {
  writeCylinder(to(), "", "", 0.1, 2);
  writeCylinder(to(), "C", "SIDES", 0.1, 2);
  EXPECT_EQ(written(),
            "Cylinder {\n\tradius 0.1\n\theight 2\n}\n"
            "DEF C Cylinder {\n\tparts SIDES\n\tradius 0.1\n\theight 2\n}\n");
}

TEST_F(GeometryWriterTest, NestedInASeparatorAtTheCurrentIndentation) {
  out().setLevel(1);
  {
    SeparatorBlock block(out(), "B");
    writeTranslation(to(), -1e-9, 0.5, 2);
  }
  EXPECT_EQ(written(), "\tDEF B Separator {\n\t\tTranslation {\n\t\t\ttranslation -0 0.5 2\n\t\t}\n\t}\n");
  EXPECT_EQ(out().level(), 1);
}

TEST_F(GeometryWriterTest, OnePointAndOneFace) {
  WallMesh::PointList points(4);
  points[0].x = 1.5;
  WallMesh::FaceList faces{WallFace{{&points[0], &points[1], &points[2], &points[3]}}};
  writeCoordinate3(to(), "", points);
  WallMesh::PointList single(1);
  writeCoordinate3(to(), "", single);
  writeIndexedFaceSet(to(), "W", faces);
  EXPECT_EQ(written(),
            "Coordinate3 {\n\tpoint [1.5 0 0,\n\t\t0 0 0,\n\t\t0 0 0,\n\t\t0 0 0 ]\n}\n"
            "Coordinate3 {\n\tpoint [0 0 0 ]\n}\n"
            "DEF W IndexedFaceSet {\n\tcoordIndex [3, 2, 1, 0, -1  ]\n"
            "\tmaterialIndex -1\n\tnormalIndex -1\n\ttextureCoordIndex -1\n}\n");
}

TEST_F(GeometryWriterTest, EmptyListsAndSeparatorsBetweenFaces) {
  WallMesh::PointList points(5);
  for (int i = 0; i < 5; ++i) points[i].outputIndex = i;
  WallMesh::FaceList faces{WallFace{{&points[0], &points[1], &points[2], &points[3]}},
                           WallFace{{&points[1], &points[4], &points[3], &points[2]}}};
  writeIndexedFaceSet(to(), "", faces);
  WallMesh::PointList none;
  writeCoordinate3(to(), "", none);
  writeIndexedFaceSet(to(), "", WallMesh::FaceList{});
  EXPECT_EQ(written(),
            "IndexedFaceSet {\n\tcoordIndex [3, 2, 1, 0, -1 ,\n\t\t2, 3, 4, 1, -1  ]\n"
            "\tmaterialIndex -1\n\tnormalIndex -1\n\ttextureCoordIndex -1\n}\n"
            "Coordinate3 {\n\tpoint []\n}\n"
            "IndexedFaceSet {\n\tcoordIndex [ ]\n}\n");
}

TEST_F(GeometryWriterTest, NumbersThatAreNotFiniteAreReportedAndWrittenAsZero) {
  writeTranslation(to(), INFINITY, std::nan(""), 1e308);
  EXPECT_EQ(view.errorCount(), 2);
  EXPECT_EQ(view.transcript(), "error: Number is not finite\nerror: Number is not finite\n");
  EXPECT_EQ(written(), "Translation {\n\ttranslation 0 0 1e+308\n}\n");
}

}  // namespace
}  // namespace lumeric
