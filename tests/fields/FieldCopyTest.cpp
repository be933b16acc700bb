// Evaluated copies (clone, copyValueFrom), list storage and its growth
// numbers, owner attachment, and the enumeration fields.
#include <cstring>

#include "core/QvContext.h"
#include "fields/FieldFixture.h"
#include "fields/QvMFFloat.h"
#include "fields/QvMFString.h"
#include "fields/QvMFVec3f.h"
#include "fields/QvSFBitMask.h"
#include "fields/QvSFEnum.h"
#include "fields/QvSFFloat.h"
#include "fields/QvSFImage.h"
#include "scene/QvNode.h"

namespace lumeric {
namespace {

struct CopyCase {
  const char* type;
  const char* value;
  const char* written;  // of the copy
  Messages messages;    // of copying and writing the copy
};

std::ostream& operator<<(std::ostream& out, const CopyCase& c) { return out << c.type << " " << c.value; }

class FieldCopyTest : public FieldFixture, public ::testing::WithParamInterface<CopyCase> {};

// A copy holds numbers, never the source's expressions: it is plain, and
// changing the source afterwards leaves it alone.
TEST_P(FieldCopyTest, CloneHoldsTheEvaluatedValue) {
  const CopyCase& c = GetParam();
  std::unique_ptr<QvField> field = holding(c.type, c.value);
  std::unique_ptr<QvField> copy(field->clone());
  ASSERT_NE(copy, nullptr);
  EXPECT_STREQ(copy->getTypeName(), c.type);
  EXPECT_EQ(copy->isExpression, 0);
  EXPECT_EQ(written(*copy), c.written);
  EXPECT_EQ(takeMessages(), c.messages);

  std::unique_ptr<QvField> filled = make(c.type);
  filled->copyValueFrom(field.get());
  takeMessages();
  EXPECT_EQ(written(*filled), c.written);
}

const CopyCase kCopies[] = {
    {"SFFloat", "=2*3", " 6\n", {}},
    {"SFLong", "2.9", " 2\n", {}},
    {"SFBool", "TRUE", " TRUE\n", {}},
    {"SFString", "\"a\"", " \"a\"\n", {}},
    {"SFNode", "Ball", " \"Ball\"\n", {}},
    {"SFVec3f", "=(1,2,3)", " 1 2 3\n", {}},
    {"SFVec3f", "=(1,2)", " 0 0 0\n", {"Line 0: Cannot set a SFVec3f using this value"}},
    {"SFVec2f", "1.5 =2", " 1.5 2\n", {}},
    {"SFColor", "=(1,0,0)", " 1 0 0\n", {}},
    {"SFColor", "=(1,0)", " 0 0 0\n", {}},
    {"SFRotation", "=(0,1,0,2)", " 0 1 0 2\n", {}},
    {"SFRotation", "=(0,1)", " 0 0 0 0\n", {"Line 2: Cannot set a SFRotation field using this expression"}},
    {"SFMatrix", "=1", " 0 0 0 0\n\t 0 0 0 0\n\t 0 0 0 0\n\t 0 0 0 0\n", {}},
    {"SFImage", "1 1 3 0xFF0000", " 1 1 3\n\t0xff0000\n", {}},
    {"MFVec3f", "[1 2 3, =(4,5,6);(7,8,9)]", " [ 1 2 3,\n\t4 5 6,\n\t7 8 9 ]\n", {}},
    {"MFVec2f", "[=\"s\", 1 2]", " 1 2\n", {}},
    {"MFColor", "[=(1,2);(3,4), 1 1 1]", " 1 1 1\n", {}},
    {"MFFloat", "[=(1,2,3), 4]", " [ 1, 2, 3, 4 ]\n", {}},
    {"MFLong", "[ ]", " [ ]\n", {}},
    {"MFString", "[\"a\", 3]", " [ \"a\",\n\t\"\" ]\n", {}},
};
INSTANTIATE_TEST_SUITE_P(All, FieldCopyTest, ::testing::ValuesIn(kCopies));

TEST_F(FieldFixture, CopyKeepsTheValueOfTheMomentOfCopying) {
  std::unique_ptr<QvField> source = holding("MFFloat", "[1, 2]");
  std::unique_ptr<QvField> copy(source->clone());
  source->SetLumericValue(term("5"), 0, -1, at());
  EXPECT_EQ(written(*copy), " [ 1, 2 ]\n");
  // A copy can be changed: it is not defined by a field expression.
  std::unique_ptr<QvField> expression = holding("MFFloat", "[=(1,2)]");
  std::unique_ptr<QvField> plain(expression->clone());
  plain->SetLumericValue(term("9"), 1, -1, at());
  EXPECT_EQ(written(*plain), " [ 1, 9 ]\n");
  EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(FieldFixture, FreshListHoldsOneElementWithRoomForTen) {
  QvMFVec3f list;
  EXPECT_EQ(list.num, 1);
  EXPECT_EQ(list.capacity, 10);
  EXPECT_EQ(list.growBy, 10);
  EXPECT_FALSE(list.element(0)[0].hasText());
  list.allocValues(0);
  EXPECT_EQ(list.num, 0);
  EXPECT_EQ(list.capacity, 0);
  EXPECT_EQ(written(list), " [ ]\n");
}

TEST_F(FieldFixture, CapacityFollowsTheListRule) {
  QvMFFloat list;
  list.setNum(11);  // within one step of 10: grows by the step
  EXPECT_EQ(list.capacity, 20);
  list.setNum(45);  // beyond one step: exactly what is asked
  EXPECT_EQ(list.capacity, 45);
  list.setNum(3);   // shrinking keeps the room
  EXPECT_EQ(list.capacity, 45);
  EXPECT_EQ(list.num, 3);
  list.setCapacity(100, 20);  // the DECLARE form
  EXPECT_EQ(list.num, 3);
  EXPECT_EQ(list.capacity, 100);
  EXPECT_EQ(list.growBy, 20);
  list.setCapacity(50, 5);  // never shrinks the room
  EXPECT_EQ(list.capacity, 100);
  EXPECT_EQ(list.growBy, 5);
  list.setNum(101);
  EXPECT_EQ(list.capacity, 105);
  list.setNum(-4);
  EXPECT_EQ(list.num, 0);
  EXPECT_EQ(list.capacity, 0);

  std::unique_ptr<QvField> single = make("SFFloat");
  single->setCapacity(100, 20);  // ignored by single values
}

TEST_F(FieldFixture, GrowingKeepsElementsAndNewOnesHaveNoText) {
  QvMFFloat list;
  list.setNum(0);
  for (int k = 0; k < 5000; ++k) list.appendValue(ScalarTerm::make(k), at());
  ASSERT_EQ(list.num, 5000);
  for (int k = 0; k < 5000; k += 999) EXPECT_EQ(std::string(list.element(k)->text()), std::to_string(k));
  EXPECT_EQ(std::string(list.element(4999)->text()), "4999");
  list.setNum(3);
  list.setNum(6);
  EXPECT_STREQ(list.element(2)->text(), "2");
  EXPECT_FALSE(list.element(3)->hasText());
  EXPECT_FALSE(list.element(5)->hasText());
  EXPECT_EQ(written(list), " [ 0, 1, 2, 0, 0, 0 ]\n");
}

class BareNode : public QvNode {
 public:
  explicit BareNode(int at) { line = at; }
  QvFieldTable* getFieldTable() override { return nullptr; }
  void evaluate(QvGroupNode*, bool) override {}
  void write(SceneWriter&) override {}
  bool readInstance(QvSceneInput*) override { return true; }
  const char* getClassName() const override { return "Bare"; }
};

TEST_F(FieldFixture, AttachNodeGivesOwnersToEveryElementWithoutOne) {
  BareNode node(11);
  BareNode other(12);
  QvMFVec3f list;
  list.setNum(3);
  list.element(1)[2].owner = &other;
  list.attachNode(&node);
  EXPECT_EQ(list.element(0)[0].owner, &node);
  EXPECT_EQ(list.element(2)[1].line, 11);
  EXPECT_EQ(list.element(1)[2].owner, &other);
  list.setNum(5);
  list.attachNode(&node);
  EXPECT_EQ(list.element(4)[2].owner, &node);
  // Texts read for a field without container have no owner until the next
  // attachNode.
  ASSERT_TRUE(read(list, "[1 2 3, 4 5 6]"));
  EXPECT_EQ(list.element(1)[2].owner, nullptr);
  list.attachNode(&node);
  EXPECT_EQ(list.element(0)[0].owner, &node);
  EXPECT_EQ(list.element(1)[2].owner, &node);
}

// Three entries as a node class registers them: two flags and their union.
class EnumFieldTest : public FieldFixture {
 protected:
  void SetUp() override {
    FieldFixture::SetUp();
    names_[0] = QvAtom("SIDES");
    names_[1] = QvAtom("BOTTOM");
    names_[2] = QvAtom("ALL");
    mask_.setEnumData(3, values_, names_);
    choice_.setEnumData(3, values_, names_);
  }

  const int values_[3] = {1, 4, 7};
  QvAtom names_[3];
  QvSFBitMask mask_;
  QvSFEnum choice_;
};

TEST_F(EnumFieldTest, ReadsAndWritesNames) {
  struct Case {
    const char* value;
    int result;
    const char* written;
  };
  const Case cases[] = {
      {"BOTTOM", 4, " BOTTOM\n"},
      {"( SIDES | BOTTOM )", 5, " ( SIDES | BOTTOM )\n"},  // reads back as 5, not as ALL
      // "|" and ")" are name characters: names need blanks around them.
      {"( SIDES | BOTTOM | ALL )", 7, " ALL\n"},
      {"( SIDES )", 1, " SIDES\n"},
      {"( )", 0, " (  )\n"},
      {"( | SIDES | )", 1, " SIDES\n"},
  };
  for (const Case& c : cases) {
    ASSERT_TRUE(read(mask_, c.value)) << c.value;
    EXPECT_EQ(mask_.value, c.result) << c.value;
    EXPECT_EQ(written(mask_), c.written) << c.value;
  }
  ASSERT_TRUE(read(choice_, "ALL"));
  EXPECT_EQ(written(choice_), " ALL\n");
  EXPECT_EQ(takeMessages(), Messages{});
}

TEST_F(EnumFieldTest, RefusesUnknownNamesAndBadSeparators) {
  struct Case {
    const char* value;
    const char* message;
  };
  const Case cases[] = {
      {"TOP", "Line 2: Unknown QvSFBitMask bit mask value \"TOP\""},
      {"( SIDES | TOP )", "Line 2: Unknown QvSFBitMask bit mask value \"TOP\""},
      {"( SIDES BOTTOM )", "Line 2: Expected '|' or ')', got 'B' in QvSFBitMask value"},
      // The input has passed the line end of the value by then.
      {"( SIDES", "Line 3: EOF reached before ')' in QvSFBitMask value"},
      {"( 3 )", "Line 2: Expected '|' or ')', got '3' in QvSFBitMask value"},
      {"sides", "Line 2: Unknown QvSFBitMask bit mask value \"\""},
  };
  for (const Case& c : cases) {
    ASSERT_FALSE(read(mask_, c.value)) << c.value;
    EXPECT_EQ(takeMessages(), Messages{c.message}) << c.value;
  }
  ASSERT_FALSE(read(choice_, "MIDDLE"));
  EXPECT_EQ(takeMessages(), Messages{"Line 2: Unknown QvSFEnum enumeration value \"MIDDLE\""});
}

TEST_F(EnumFieldTest, CopiesShareTheTableAndKeepTheValue) {
  ASSERT_TRUE(read(mask_, "BOTTOM"));
  std::unique_ptr<QvField> copy(mask_.clone());
  EXPECT_STREQ(copy->getTypeName(), "SFBitMask");
  EXPECT_EQ(written(*copy), " BOTTOM\n");
  QvSFBitMask filled;
  filled.copyValueFrom(&mask_);
  EXPECT_EQ(filled.enumNames, names_);
  EXPECT_EQ(written(filled), " BOTTOM\n");
}

TEST_F(EnumFieldTest, ValuesCannotBeExchanged) {
  mask_.SetLumericValue(term("1"), -1, -1, at());
  EXPECT_EQ(mask_.GetLumericValue(-1, -1, at()), nullptr);
  choice_.SetLumericValue(term("1"), -1, -1, at());
  EXPECT_EQ(choice_.GetLumericValue(-1, -1, at()), nullptr);
  EXPECT_EQ(takeMessages(), (Messages{"Line 7: Not implemented: tried to access SFBitMask::SetLumericValue",
                                      "Line 7: Not implemented: tried to access SFBitMask::GetLumericValue",
                                      "Line 7: Not implemented: tried to access a SFEnum::SetLumericValue",
                                      "Line 7: Not implemented: tried to access a SFEnum::GetLumericValue"}));
}

// An enumeration field declared in a file has no entries: its value is
// written as a number so that the line still ends.
TEST_F(FieldFixture, EnumWithoutEntriesWritesItsNumber) {
  QvSFEnum choice;
  choice.setDefault(2);
  EXPECT_EQ(written(choice), " 2\n");
  EXPECT_FALSE(read(choice, "LEFT"));
}

TEST_F(FieldFixture, ImageReadsPixelBytesMostSignificantFirst) {
  QvSFImage image;
  ASSERT_TRUE(read(image, "2 1 3 0xFF0000 0x000102"));
  const uint8_t expected[] = {0xFF, 0x00, 0x00, 0x00, 0x01, 0x02};
  ASSERT_EQ(image.bytes.size(), sizeof expected);
  EXPECT_EQ(std::memcmp(image.bytes.data(), expected, sizeof expected), 0);
  QvSFImage again;
  ASSERT_TRUE(read(again, written(image)));
  EXPECT_EQ(again.bytes, image.bytes);
  EXPECT_EQ(again.width, 2);
  EXPECT_EQ(again.numComponents, 3);
}

}  // namespace
}  // namespace lumeric
