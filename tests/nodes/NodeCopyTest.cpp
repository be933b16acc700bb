// The evaluated copies that nodes make of themselves (the mechanism LOOP,
// SELECT and USE build on): values are taken at the moment of copying,
// enumerations and names travel with the copy, whole subtrees are copied.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/RunState.h"
#include "core/QvContext.h"
#include "driver/Translation.h"
#include "nodes/QvCone.h"
#include "nodes/QvCube.h"
#include "nodes/QvGroup.h"
#include "nodes/QvTexture2.h"
#include "reader/NodeReader.h"
#include "scene/QvNode.h"
#include "support/RecordingView.h"
#include "support/TestNodes.h"

namespace lumeric {
namespace {

class NodeCopyTest : public ::testing::Test {
 protected:
  void SetUp() override {
    theContext.setView(&view_);
    theRun.extensionsEnabled = true;
  }
  void TearDown() override {
    target_.reset();
    root_.reset();
    theRun.defNames = nullptr;
    input_.reset();
    theContext.setView(nullptr);
    theRun.reset();
  }

  // Reads `body` as the scene's root node.
  QvNode* read(const std::string& body) {
    input_ = std::make_unique<TextInput>("#VRML V1.0 ascii\n" + body);
    theRun.defNames = &input_->get()->defNames();
    QvNode* root = nullptr;
    EXPECT_TRUE(readScene(input_->get(), root));
    root_ = std::make_unique<NodeRef>(root);
    return root;
  }

  // A fresh group that receives copies.
  QvGroupNode* target() {
    target_ = std::make_unique<NodeRef>(new QvGroup());
    return static_cast<QvGroupNode*>(target_->get());
  }

  static std::string written(QvNode* node) {
    char* text = nullptr;
    size_t size = 0;
    FILE* out = open_memstream(&text, &size);
    {
      SceneWriter writer(out);
      node->write(writer);
    }
    std::fclose(out);
    std::string result(text, size);
    std::free(text);
    return result;
  }

  RecordingView view_;
  std::unique_ptr<TextInput> input_;
  std::unique_ptr<NodeRef> root_;
  std::unique_ptr<NodeRef> target_;
};

TEST_F(NodeCopyTest, ACopyKeepsItsEnumerationsAndBitMasks) {
  QvNode* cone = read("Cone { parts BOTTOM height 3 }");
  QvGroupNode* group = target();
  cone->evaluate(group, true);
  ASSERT_EQ(group->getNumChildren(), 1);
  EXPECT_EQ(written(group->getChild(0)), "Cone {\n\tparts BOTTOM\n\tbottomRadius 1\n\theight 3\n}\n\n");
}

TEST_F(NodeCopyTest, ACopyHoldsTheValuesOfTheMomentOfCopying) {
  QvNode* group = read(
      "Group { DEF Base Cube { width 2 } Sphere { radius Base:width*2 } "
      "Translation { translation =(Base:width,0,0) } }");
  QvGroupNode* copies = target();
  group->evaluate(copies, true);
  // The original changes afterwards; the copies keep what they got.
  QvCube* base = static_cast<QvCube*>(static_cast<QvGroupNode*>(group)->getChild(0));
  base->width.setDefault(10);
  ASSERT_EQ(copies->getNumChildren(), 1);
  QvGroupNode* copy = static_cast<QvGroupNode*>(copies->getChild(0));
  ASSERT_EQ(copy->getNumChildren(), 3);
  EXPECT_EQ(written(copy->getChild(1)), "Sphere {\n\tradius 4\n}\n\n");
  EXPECT_EQ(written(copy->getChild(2)), "Translation {\n\ttranslation 2 0 0\n}\n\n");
  // The name Base now belongs to the copy, so the original Sphere reads the
  // copy's width too.
  EXPECT_EQ(written(static_cast<QvGroupNode*>(group)->getChild(1)), "Sphere {\n\tradius 4\n}\n\n");
  EXPECT_EQ(theRun.defNames->findName(QvAtom("Base")), copy->getChild(0));
  EXPECT_EQ(view_.transcript(), "");
}

TEST_F(NodeCopyTest, ANamedNodeCopiedTwiceIsFoundAsTheSecondCopy) {
  QvNode* group = read("Group { DEF Ball Sphere { radius 3 } }");
  QvNode* ball = static_cast<QvGroupNode*>(group)->getChild(0);
  QvGroupNode* copies = target();
  ball->evaluate(copies, true);
  ball->evaluate(copies, true);
  ASSERT_EQ(copies->getNumChildren(), 2);
  EXPECT_EQ(theRun.defNames->findName(QvAtom("Ball")), copies->getChild(1));
  EXPECT_STREQ(copies->getChild(0)->getName(), "Ball");
  EXPECT_EQ(copies->getChild(0)->line, ball->line);
  EXPECT_TRUE(copies->getChild(0)->fileName.isEmpty());
}

TEST_F(NodeCopyTest, TwoTexturesShareOneWrapTableButNotTheirValues) {
  QvNode* group = read("Group { Texture2 { wrapS CLAMP } Texture2 { } }");
  QvGroupNode* g = static_cast<QvGroupNode*>(group);
  QvTexture2* first = static_cast<QvTexture2*>(g->getChild(0));
  QvTexture2* second = static_cast<QvTexture2*>(g->getChild(1));
  EXPECT_EQ(first->wrapS.enumNames, second->wrapT.enumNames);
  EXPECT_EQ(first->wrapS.value, 1);
  EXPECT_EQ(second->wrapS.value, 0);
}

TEST_F(NodeCopyTest, UnknownNodesCopyTheirDeclaredFields) {
  QvNode* thing = read("Thing { fields [ SFFloat a, MFFloat b ] a 1+1 b [ 1, =(2,3) ] Cube { } }");
  QvGroupNode* copies = target();
  thing->evaluate(copies, true);
  ASSERT_EQ(copies->getNumChildren(), 1);
  EXPECT_EQ(written(copies->getChild(0)),
            "Thing {\n\tfields [ SFFloat a, MFFloat b ]\n\ta 2\n\tb [ 1, 2, 3 ]\n\n"
            "\tCube {\n\t\twidth 2\n\t\theight 2\n\t\tdepth 2\n\t}\n\n}\n\n");
}

}  // namespace
}  // namespace lumeric

namespace lumeric {
namespace {

TEST_F(NodeCopyTest, NamesThatCannotBeNamesAreRepaired) {
  PlainTestNode node;
  struct {
    const char* given;
    const char* kept;
  } cases[] = {{"1abc", "_1abc"}, {"a.b", "a_b"}, {"ok_name", "ok_name"}, {"+x", "__x"}, {"a b", "a_b"}};
  for (const auto& c : cases) {
    node.setName(QvAtom(c.given));
    EXPECT_STREQ(node.getName(), c.kept) << c.given;
  }
  node.setName(QvAtom());
  EXPECT_FALSE(node.hasName());
}

TEST_F(NodeCopyTest, ComputedNamesAreRepairedToo) {
  QvNode* group = read("Group { VARNAME Row~`(1,2)` Cube { } }");
  QvNode* cube = static_cast<QvGroupNode*>(group)->getChild(0);
  EXPECT_STREQ(cube->getName(), "Row(1_2)");
  QvGroupNode* copies = target();
  cube->evaluate(copies, true);
  EXPECT_STREQ(copies->getChild(0)->getName(), "Row(1_2)");
  EXPECT_EQ(written(copies->getChild(0)).substr(0, 19), "DEF Row(1_2) Cube {");
}

}  // namespace
}  // namespace lumeric
