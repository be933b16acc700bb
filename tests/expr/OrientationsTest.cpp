#include "expr/functions/OrientationBetween.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/QvContext.h"
#include "expr/Evaluation.h"
#include "expr/ExpressionFixture.h"
#include "expr/TestNode.h"

namespace lumeric {
namespace {

constexpr double kHalfPi = 1.5707963267948966;

class OrientationsTest : public ExpressionFixture {
 protected:
  void TearDown() override {
    for (TestNode* node : nodes_) node->unref();
    ExpressionFixture::TearDown();
  }

  // A node whose field "position" holds `text`.
  TestNode* nodeAt(const char* position) {
    TestNode* node = new TestNode;
    node->ref();
    nodes_.push_back(node);
    if (position != nullptr) node->addField("position", position);
    return node;
  }

  Term* evaluateIn(TestNode* owner, const char* text) {
    FieldExpression* e = expression(text);
    e->attachOwner(owner);
    e->line = kLine;
    return evaluateTerm(e);
  }

  // The elements of `text`'s value, a vector or matrix, close to `expected`.
  void expectNear(const char* text, const std::vector<double>& expected) {
    Term* value = evaluateTerm(expression(text));
    const double* elements = nullptr;
    size_t count = 0;
    if (VectorTerm* v = asVector(value)) elements = v->elements, count = static_cast<size_t>(v->length);
    if (MatrixTerm* m = asMatrix(value)) elements = m->elements, count = static_cast<size_t>(m->rows * m->cols);
    ASSERT_EQ(count, expected.size()) << text << ": " << describeTerm(value);
    for (size_t k = 0; k < count; ++k) EXPECT_NEAR(elements[k], expected[k], 1e-12) << text << " [" << k << "]";
  }

 private:
  std::vector<TestNode*> nodes_;
};

TEST_F(OrientationsTest, PointAtReadsTheOwnersPosition) {
  TestNode* camera = nodeAt("(0,0,10)");
  EXPECT_EQ(describeTerm(evaluateIn(camera, "PointAt(0,0,0)")), "vector (0,1,0,0)");
  EXPECT_EQ(describeTerm(evaluateIn(camera, "PointAt((10,0,10))")), "vector (0,-1,0,1.5708)");
  EXPECT_EQ(takeMessages(), std::vector<std::string>{});
}

TEST_F(OrientationsTest, PointAtRefusesAPositionThatIsNotAPoint) {
  const std::string needsPosition =
      "PointAt(x,y,z) can only be used in a node with a SFVec3f field named \"position\"";
  EXPECT_EQ(evaluateIn(nodeAt("(1,2)"), "PointAt(0,0,0)"), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{needsPosition});
  EXPECT_EQ(evaluateIn(nodeAt("7"), "PointAt((0,0,0))"), nullptr);
  EXPECT_EQ(takeMessages(), std::vector<std::string>{"PointAt(point) requires the 3D value for point"});
  EXPECT_EQ(evaluateIn(nodeAt(nullptr), "PointAt(0,0,0)"), nullptr);
  EXPECT_EQ(takeMessages(), (std::vector<std::string>{"Local Field position not found", needsPosition}));
}

TEST_F(OrientationsTest, PointAtTurnsTheViewDirectionOntoTheTarget) {
  // Rotating (0,0,-1) by the orientation must give the unit direction.
  const double targets[][3] = {{3, 0, 0}, {0, 0, 4}, {1, 2, 3}, {-2, 1, -1}, {0, -5, 0}, {0, 5, 0}, {0.5, 7, 0}};
  for (const auto& t : targets) {
    char text[96];
    std::snprintf(text, sizeof text, "PointAt(0,0,0,%g,%g,%g)", t[0], t[1], t[2]);
    VectorTerm* o = asVector(evaluateTerm(expression(text)));
    ASSERT_NE(o, nullptr) << text;
    const double k[3] = {o->elements[0], o->elements[1], o->elements[2]};
    const double c = std::cos(o->elements[3]), s = std::sin(o->elements[3]);
    const double v[3] = {0, 0, -1};
    const double kv = k[0] * v[0] + k[1] * v[1] + k[2] * v[2];
    const double cross[3] = {k[1] * v[2] - k[2] * v[1], k[2] * v[0] - k[0] * v[2], k[0] * v[1] - k[1] * v[0]};
    const double length = std::sqrt(t[0] * t[0] + t[1] * t[1] + t[2] * t[2]);
    for (int i = 0; i < 3; ++i) {
      EXPECT_NEAR(v[i] * c + cross[i] * s + k[i] * kv * (1 - c), t[i] / length, 1e-9) << text << " [" << i << "]";
    }
  }
}

TEST_F(OrientationsTest, OrientationBetweenWithoutAnExpressionPostsWithoutPrefix) {
  const double origin[3] = {0, 0, 0}, up[3] = {0, 2, 0}, side[3] = {3, 0, 0};
  double orientation[4];
  orientationBetween(origin, up, origin, side, orientation, nullptr);
  EXPECT_EQ(std::vector<double>(orientation, orientation + 4), (std::vector<double>{0, 0, -1, kHalfPi}));
  orientationBetween(origin, origin, origin, side, orientation, nullptr);
  EXPECT_EQ(std::vector<double>(orientation, orientation + 4), (std::vector<double>{0, 0, 1, 0}));
  ASSERT_EQ(view_.messages().size(), 1u);
  EXPECT_EQ(view_.messages()[0].text, "No direction specificed");
  view_.clear();
}

TEST_F(OrientationsTest, RotateAboutALineMovesPointsAsTheRightHandRuleSays) {
  expectNear("((1,0,0,1);(0,0,0,1)) * Rotate((0,0,0),(0,0,1),pi()/2)", {0, 1, 0, 1, 0, 0, 0, 1});
  expectNear("((2,0,0,1);(1,0,0,1)) * Rotate((1,0,0),(1,0,1),pi())", {0, 0, 0, 1, 1, 0, 0, 1});
  // About +y, z turns toward x; about an oblique line, a point on it stays.
  expectNear("((0,0,1,1);(1,1,1,1)) * Rotate((0,-1,0),(0,1,0),pi()/2)", {1, 0, 0, 1, 1, 1, -1, 1});
  expectNear("((2,2,2,1);(1,0,0,1)) * Rotate((0,0,0),(1,1,1),2*pi()/3)", {2, 2, 2, 1, 0, 1, 0, 1});
  // A two-element point lies in the plane z = 0.
  expectNear("((1,0,0,1);(0,0,0,1)) * Rotate((0,0),(0,0,1),pi()/2)", {0, 1, 0, 1, 0, 0, 0, 1});
}

TEST_F(OrientationsTest, RotateAboutALineFailsSilentlyWithoutADirectionOffTheXAxis) {
  for (const char* text : {"Rotate((0,0,0),(1,0,0),1)", "Rotate((1,2,3),(1,2,3),1)", "Rotate((0,0,0),(-2,0,0),1)"}) {
    EXPECT_EQ(evaluateTerm(expression(text)), nullptr) << text;
    EXPECT_EQ(theContext.parseStatus, 1) << text;
    EXPECT_EQ(takeMessages(), std::vector<std::string>{}) << text;
  }
}

}  // namespace
}  // namespace lumeric
