// Value texts read from a scene and the text each field type writes for
// them, with the messages posted on the way.  Precision step 0.0001.
#include "fields/FieldFactory.h"
#include "core/RunState.h"
#include "core/QvContext.h"
#include "fields/FieldFixture.h"
#include "core/QvAtom.h"
#include "scene/QvFieldTable.h"

namespace lumeric {
namespace {

struct WriteCase {
  const char* type;
  const char* value;
  const char* written;
  Messages messages;
};

std::ostream& operator<<(std::ostream& out, const WriteCase& c) { return out << c.type << " " << c.value; }

class FieldWriteTest : public FieldFixture, public ::testing::WithParamInterface<WriteCase> {};

TEST_P(FieldWriteTest, WritesTheEvaluatedValue) {
  const WriteCase& c = GetParam();
  std::unique_ptr<QvField> field = holding(c.type, c.value);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(written(*field), c.written);
  EXPECT_EQ(takeMessages(), c.messages);
  EXPECT_EQ(indentLevel, 0);
}

const WriteCase kNumbers[] = {
    {"SFFloat", "1.23456", " 1.2346\n", {}},
    {"SFFloat", "-1.23456", " -1.2346\n", {}},
    {"SFFloat", "-1.23452", " -1.2345\n", {}},
    {"SFFloat", "-0.00001", " -0\n", {}},
    {"SFFloat", "=2*3", " 6\n", {}},
    {"SFFloat", "(1,2)", " 0\n", {}},
    {"SFLong", "-2.7", " -2\n", {}},
    {"SFLong", "2.9", " 2\n", {}},
    {"SFLong", "1e12", " 2147483647\n", {}},
    {"SFLong", "1.23456", " 1\n", {}},
    {"SFBool", "0.5", " TRUE\n", {}},
    {"SFBool", "-0", " FALSE\n", {}},
    {"SFBool", "TRUE", " TRUE\n", {}},
    {"SFBool", "false", " FALSE\n", {}},
};
INSTANTIATE_TEST_SUITE_P(Numbers, FieldWriteTest, ::testing::ValuesIn(kNumbers));

const WriteCase kStrings[] = {
    {"SFString", "\"a b\"", " \"a b\"\n", {}},
    {"SFString", "\"Hello, world\"", " \"Hello, world\"\n", {}},
    {"SFString", "3", "", {"Line 2: Cannot evaluate string"}},
    {"SFNode", "Ball", " \"Ball\"\n", {}},
    {"MFString", "\"x\"", " \"x\"\n", {}},
    {"MFString", "[ ]", " [ ]\n", {}},
    {"MFString", "[\"a\", \"b\", \"c\"]", " [ \"a\",\n\t\"b\",\n\t\"c\" ]\n", {}},
    {"MFString", "[\"a\", \"b\"]", " [ \"a\",\n\t\"b\" ]\n", {}},
    // An element that is no string keeps its place as "".
    {"MFString", "[\"a\", 3]", " [ \"a\",\n\t\"\" ]\n", {}},
    {"MFString", "[3, \"a\"]", " [ \"\",\n\t\"a\" ]\n", {}},
};
INSTANTIATE_TEST_SUITE_P(Strings, FieldWriteTest, ::testing::ValuesIn(kStrings));

const WriteCase kVectors[] = {
    {"SFVec2f", "1.23456 2", " 1.2346 2\n", {}},
    {"SFVec2f", "=(0.123456,1)", " 0.1235 1\n", {}},
    {"SFVec3f", "0 1.5 -2", " 0 1.5 -2\n", {}},
    {"SFVec3f", "=(1,2,3)", " 1 2 3\n", {}},
    {"SFVec3f", "=(1,2)", "", {"Line 2: Cannot define a SFVec3f using this value"}},
    {"SFVec4f", "1 2 3 4.00004", " 1 2 3 4\n", {}},
    {"SFVec4f", "=(1,2,3)", "", {"Line 2: Cannot define a SFVec4f using this value"}},
    {"SFColor", "0.123456 1 0", " 0.123456 1 0\n", {}},
    {"SFColor", "=(1,0,0.5)", " 1 0 0.5\n", {}},
    {"SFColor", "=(1,0)", "", {"Line 2: Field expression does not evaluate to a color field"}},
    {"SFRotation", "0 0 1 1.5707963", " 0 0 1 1.5708\n", {}},
    {"SFRotation", "0.123456 0 1 0.123456", " 0.1235 0 1 0.123456\n", {}},
    {"SFRotation", "=(0,1,0,3.14159265)", " 0  1  0  3.14159\n", {}},
    {"SFRotation", "=(0,1,0)", "", {"Line 2: Cannot use this expression to set a rotation field"}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0.123456 0 0 1", " 1 0 0 0\n\t 0 1 0 0\n\t 0 0 1 0\n\t 0.123456 0 0 1\n", {}},
    {"SFMatrix", "=1", "", {"Line 2: Expression does not evaluate to a 4 by 4 matrix"}},
};
INSTANTIATE_TEST_SUITE_P(Vectors, FieldWriteTest, ::testing::ValuesIn(kVectors));

const WriteCase kImages[] = {
    {"SFImage", "0 0 0", " 0 0 0\n", {}},
    {"SFImage", "1 1 3 0xFF0000", " 1 1 3\n\t0xff0000\n", {}},
    {"SFImage", "2 1 1 10 255", " 2 1 1\n\t0x0a 0xff\n", {}},
    {"SFImage", "1 1 4 0x01020304", " 1 1 4\n\t0x01020304\n", {}},
    {"SFImage", "1 1 2 0x12345", " 1 1 2\n\t0x2345\n", {}},
    {"SFImage", "1 2 0 7 7", " 1 2 0\n\t0x00 0x00\n", {}},
    {"SFImage", "3 3 1 1 2 3 4 5 6 7 8 9", " 3 3 1\n\t0x01 0x02 0x03 0x04 0x05 0x06 0x07 0x08\n\t0x09\n", {}},
};
INSTANTIATE_TEST_SUITE_P(Images, FieldWriteTest, ::testing::ValuesIn(kImages));

const char kTwentyFive[] = "[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25]";

const WriteCase kNumberLists[] = {
    {"MFFloat", "[ ]", " [ ]\n", {}},
    {"MFFloat", "1.23456", " 1.2346\n", {}},
    {"MFFloat", "[1.5]", " 1.5\n", {}},
    {"MFFloat", "[1, 2.00004, 3]", " [ 1, 2, 3 ]\n", {}},
    {"MFFloat", "[1,2,3,4,5,6,7,8,9,10]", " [ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 ]\n", {}},
    {"MFFloat", "[1,2,3,4,5,6,7,8,9,10,11]", " [ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10,\n\t 11 ]\n", {}},
    {"MFFloat", kTwentyFive,
     " [ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10,\n\t 11, 12, 13, 14, 15, 16, 17, 18, 19, 20,\n\t 21, 22, 23, 24, 25 ]\n",
     {}},
    {"MFFloat", "[ =(1,2,3), =2*3 ]", " [ 1, 2, 3, 6 ]\n", {}},
    {"MFFloat", "[ =((1,2);(3,4)), 5 ]", " [ 1, 2, 3, 4, 5 ]\n", {}},
    {"MFFloat", "[ =\"s\", 5 ]", " 5\n", {}},
    {"MFFloat", "=\"s\"", " [ ]\n", {}},
    {"MFLong", "[2.9, -2.9]", " [ 2, -2 ]\n", {}},
    {"MFLong", "[=(1.5,2.5)]", " [ 1, 2 ]\n", {}},
    {"MFLong", "-1", " -1\n", {}},
};
INSTANTIATE_TEST_SUITE_P(NumberLists, FieldWriteTest, ::testing::ValuesIn(kNumberLists));

const char kBadVec3[] = "Line 2: Bounds error: cannot set a MFVec3f field using this value";
const char kBadVec4[] = "Line 2: Bounds error: cannot set a MFVec4f field using this value ";

const WriteCase kVectorLists[] = {
    {"MFVec3f", "[ ]", " [ ]\n", {}},
    {"MFVec3f", "1 2 3", " 1 2 3\n", {}},
    {"MFVec3f", "[1 2 3, 4 5 6.00004]", " [ 1 2 3,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", "[ 1 2 3, =(4,5,6);(7,8,9) ]", " [ 1 2 3,\n\t4 5 6,\n\t7 8 9 ]\n", {}},
    {"MFVec3f", "[ =\"s\", 1 2 3 ]", " [ -9999.99 -9999.99 -9999.99,\n\t1 2 3 ]\n", {kBadVec3}},
    {"MFVec3f", "[ 1 2 3, =(1,2) ]", " [ 1 2 3,\n\t-9999.99 -9999.99 -9999.99 ]\n", {kBadVec3}},
    {"MFVec2f", "[1 2, 3.00004 4]", " [ 1 2,\n\t3 4 ]\n", {}},
    {"MFVec2f", "=\"s\"", " [ ]\n", {}},
    {"MFVec2f", "[ =(1,2,3), 5 6 ]", " 5 6\n", {}},
    {"MFVec4f", "1 2 3 4", " 1 2 3 4\n", {}},
    {"MFVec4f", "[ =1 ]", " -9999.99 -9999.99 -9999.99 -9999.99\n", {kBadVec4}},
    {"MFVec4f", "[ =(1,2,3,4);(5,6,7,8) ]", " [ 1 2 3 4,\n\t5 6 7 8 ]\n", {}},
    {"MFColor", "[0.123456 0 0, 1 1 1]", " [ 0.123456 0 0,\n\t1 1 1 ]\n", {}},
    {"MFColor", "[ =(1,2);(3,4) ]", " [ ]\n", {}},
    {"MFColor", "[ =(1,0,0), =\"s\", =(0,1,0);(0,0,1) ]", " [ 1 0 0,\n\t0 1 0,\n\t0 0 1 ]\n", {}},
};
INSTANTIATE_TEST_SUITE_P(VectorLists, FieldWriteTest, ::testing::ValuesIn(kVectorLists));

// The layout of a long list, checked at the nesting the node writer gives:
// continuation lines are one level deeper than the field.
TEST_F(FieldFixture, ListRowsIndentOneLevelBelowTheField) {
  std::unique_ptr<QvField> vectors = holding("MFVec2f", "[1 2, 3 4]");
  std::unique_ptr<QvField> numbers = holding("MFFloat", "[1,2,3,4,5,6,7,8,9,10,11]");
  std::unique_ptr<QvField> matrix = holding("SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1");
  indentLevel = 2;
  EXPECT_EQ(written(*vectors), " [ 1 2,\n\t\t\t3 4 ]\n");
  EXPECT_EQ(written(*numbers), " [ 1, 2, 3, 4, 5, 6, 7, 8, 9, 10,\n\t\t\t 11 ]\n");
  EXPECT_EQ(written(*matrix), " 1 0 0 0\n\t\t\t 0 1 0 0\n\t\t\t 0 0 1 0\n\t\t\t 0 0 0 1\n");
  EXPECT_EQ(indentLevel, 2);
}

TEST_F(FieldFixture, PrecisionZeroWritesTheNumbersAsTheyAre) {
  precisionQuantum = 0;
  EXPECT_EQ(written(*holding("SFFloat", "1.23456")), " 1.23456\n");
  EXPECT_EQ(written(*holding("MFVec3f", "[1.23456 0 0, 0 0 0]")), " [ 1.23456 0 0,\n\t0 0 0 ]\n");
  precisionQuantum = 0.5;
  EXPECT_EQ(written(*holding("MFFloat", "[0.74, 0.76]")), " [ 0.5, 1 ]\n");
}

// A value is evaluated afresh at every write.
TEST_F(FieldFixture, WriteEvaluatesAgainEachTime) {
  std::unique_ptr<QvField> field = holding("SFFloat", "7");
  EXPECT_EQ(written(*field), " 7\n");
  field->SetLumericValue(term("8"), -1, -1, at());
  EXPECT_EQ(written(*field), " 8\n");
}

TEST_F(FieldFixture, FactoryKnowsExactlyTheTwentyOneTypes) {
  const char* names[] = {"MFColor", "MFFloat",  "MFLong",   "MFString", "MFVec2f",    "MFVec3f",  "MFVec4f",
                         "SFBitMask", "SFBool", "SFColor",  "SFEnum",   "SFFloat",    "SFImage",  "SFLong",
                         "SFMatrix",  "SFNode", "SFRotation", "SFString", "SFVec2f",  "SFVec3f",  "SFVec4f"};
  for (const char* name : names) {
    std::unique_ptr<QvField> field(createField(QvAtom(name)));
    ASSERT_NE(field, nullptr) << name;
    EXPECT_STREQ(field->getTypeName(), name);
    std::unique_ptr<QvField> copy(field->clone());
    EXPECT_STREQ(copy->getTypeName(), name);
  }
  EXPECT_EQ(createField(QvAtom("SFWhatever")), nullptr);
  EXPECT_EQ(createField(QvAtom("sffloat")), nullptr);
  EXPECT_EQ(createField(QvAtom("")), nullptr);
}

struct BadReadCase {
  const char* type;
  const char* value;
};

class FieldBadReadTest : public FieldFixture, public ::testing::WithParamInterface<BadReadCase> {};

TEST_P(FieldBadReadTest, ReadFails) {
  std::unique_ptr<QvField> field = make(GetParam().type);
  EXPECT_FALSE(read(*field, GetParam().value));
}

const BadReadCase kBadReads[] = {
    {"SFVec3f", "1 2"},
    {"SFRotation", "0 0 1"},
    {"SFMatrix", "1 0 0 0"},
    {"SFFloat", ""},
    {"MFVec3f", "[1 2 3, 4 5"},
    {"SFImage", "2 2 1 1 2 3"},
    {"SFImage", "-1 1 1"},
    {"SFImage", "1 1 5 0"},
    {"SFImage", "1 x"},
    {"SFImage", "32767 32767 4 1"},
};
INSTANTIATE_TEST_SUITE_P(Damaged, FieldBadReadTest, ::testing::ValuesIn(kBadReads));

}  // namespace
}  // namespace lumeric
