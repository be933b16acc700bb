// Values crossing between fields and expressions: SetLumericValue,
// appendValue and GetLumericValue of every type.  Messages at the caller's
// expression start "Line 7: ", at the field's own texts "Line 2: ".
#include "core/RunState.h"
#include "fields/FieldFixture.h"

namespace lumeric {
namespace {

constexpr int kNone = -1;

const char kDefinedSet[] = "Line 7: This field is defined by a field expression - cannot set its value";

struct SetCase {
  const char* type;
  const char* value;
  const char* assigned;  // an expression text
  int i;
  int j;
  const char* written;   // afterwards
  Messages messages;
};

std::ostream& operator<<(std::ostream& out, const SetCase& c) {
  return out << c.type << " " << c.value << " <- " << c.assigned << " [" << c.i << "][" << c.j << "]";
}

class FieldSetTest : public FieldFixture, public ::testing::WithParamInterface<SetCase> {};

TEST_P(FieldSetTest, StoresOrRefuses) {
  const SetCase& c = GetParam();
  std::unique_ptr<QvField> field = holding(c.type, c.value);
  Term* value = term(c.assigned);
  ASSERT_EQ(takeMessages(), Messages{});
  field->SetLumericValue(value, c.i, c.j, at());
  EXPECT_EQ(takeMessages(), c.messages);
  EXPECT_EQ(written(*field), c.written);
}

const SetCase kSingleSets[] = {
    {"SFFloat", "1", "2.5", kNone, kNone, " 2.5\n", {}},
    {"SFFloat", "1", "\"s\"", kNone, kNone, " 1\n", {"Line 7: Cannot set SFFloat using this value"}},
    {"SFLong", "1", "2.5", 4, 4, " 2\n", {}},
    {"SFLong", "1", "(1,2)", kNone, kNone, " 1\n", {"Line 7: Cannot set SFLong using this value"}},
    {"SFBool", "0", "3", kNone, kNone, " TRUE\n", {}},
    {"SFBool", "0", "\"s\"", kNone, kNone, " FALSE\n", {"Line 7: Cannot set SFBool using this value"}},
    {"SFString", "\"a\"", "\"b c\"", kNone, kNone, " \"b c\"\n", {}},
    {"SFString", "\"a\"", "3", kNone, kNone, " \"a\"\n", {"Line 7: Cannot set SFString using this value"}},
    {"SFNode", "A", "\"B\"", kNone, kNone, " \"B\"\n", {}},
    {"SFNode", "A", "3", kNone, kNone, " \"A\"\n", {"Line 7: Cannot set SFNode using this value"}},
    {"SFVec3f", "1 2 3", "(4,5,6)", kNone, kNone, " 4 5 6\n", {}},
    {"SFVec3f", "1 2 3", "9", 2, 7, " 1 2 9\n", {}},
    {"SFVec3f", "1 2 3", "(1,2)", kNone, kNone, " 1 2 3\n", {"Line 7: Cannot set SFVec3f using this value"}},
    {"SFVec3f", "1 2 3", "9", 3, kNone, " 1 2 3\n", {"Line 2: Cannot set SFVec3f using this value"}},
    {"SFVec3f", "1 2 3", "(9,9,9)", 0, kNone, " 1 2 3\n", {"Line 2: Cannot set SFVec3f using this value"}},
    {"SFVec3f", "=(1,2,3)", "(4,5,6)", kNone, kNone, " 1 2 3\n", {kDefinedSet}},
    {"SFVec2f", "1 2", "9", 2, kNone, " 1 2\n", {"Line 2: Cannot set SFVec2f using this value"}},
    {"SFVec4f", "1 2 3 4", "9", 4, kNone, " 1 2 3 4\n", {"Line 7: Cannot set SFVec4f using this value"}},
    {"SFColor", "1 1 1", "(0,0.5,1)", kNone, kNone, " 0 0.5 1\n", {}},
    {"SFColor", "1 1 1", "0.25", 1, kNone, " 1 0.25 1\n", {}},
    {"SFColor", "1 1 1", "(1,2)", kNone, kNone, " 1 1 1\n", {"Line 7: Cannot set QvSFColor using this value"}},
    {"SFColor", "1 1 1", "5", 3, kNone, " 1 1 1\n", {"Line 7: Cannot set SFColor using this value"}},
    {"SFColor", "=(1,1,1)", "5", 0, kNone, " 1 1 1\n", {kDefinedSet}},
    {"SFRotation", "0 0 1 0", "2", 3, kNone, " 0 0 1 2\n", {}},
    {"SFRotation", "0 0 1 0", "(1,0,0,1)", kNone, kNone, " 1 0 0 1\n", {}},
    {"SFRotation", "0 0 1 0", "(1,2,3)", kNone, kNone, " 0 0 1 0\n",
     {"Line 7: Cannot set a SFRotation field using this expression"}},
    {"SFRotation", "=(0,0,1,0)", "(1,0,0,1)", kNone, kNone, " 0  0  1  0\n",
     {"Line 7: This field is defined by a expression - cannot set its value"}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", "7", 1, 2, " 1 0 0 0\n\t 0 1 7 0\n\t 0 0 1 0\n\t 0 0 0 1\n", {}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1", "7", 1, kNone, " 1 0 0 0\n\t 0 1 0 0\n\t 0 0 1 0\n\t 0 0 0 1\n",
     {"Line 7: Cannot set SFMatrix using this value"}},
    {"SFMatrix", "=1", "7", 0, 0, "", {kDefinedSet}},
    {"SFImage", "0 0 0", "1", kNone, kNone, " 0 0 0\n", {"Not Implemented - SFImage::SetLumericValue"}},
};
INSTANTIATE_TEST_SUITE_P(Single, FieldSetTest, ::testing::ValuesIn(kSingleSets));

const char kThree[] = "[1 2 3, 4 5 6]";

const SetCase kListSets[] = {
    {"MFVec3f", kThree, "(1,1,1);(2,2,2);(3,3,3)", kNone, kNone, " [ 1 1 1,\n\t2 2 2,\n\t3 3 3 ]\n", {}},
    {"MFVec3f", kThree, "(7,8,9)", kNone, kNone, " 7 8 9\n", {}},
    {"MFVec3f", kThree, "(7,8,9)", 1, kNone, " [ 1 2 3,\n\t7 8 9 ]\n", {}},
    {"MFVec3f", kThree, "9", 0, 2, " [ 1 2 9,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", kThree, "(7,8)", 1, kNone, " [ 1 2 3,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", kThree, "9", 2, 0, " [ 1 2 3,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", kThree, "9", 0, 3, " [ 1 2 3,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", kThree, "\"s\"", kNone, kNone, " [ 1 2 3,\n\t4 5 6 ]\n",
     {"Line 7: Bounds error: cannot set a MFVec3f field using this value"}},
    {"MFVec3f", "=(1,2,3)", "(4,5,6)", kNone, kNone, " 1 2 3\n", {kDefinedSet}},
    {"MFVec2f", "[1 2]", "1", kNone, kNone, " 1 2\n",
     {"Line 7: Bounds error: cannot set a MFVec2f field using this value "}},
    {"MFVec4f", "[1 2 3 4]", "1", kNone, kNone, " 1 2 3 4\n",
     {"Line 7: Bounds error: cannot set a MFVec4f field using this value "}},
    {"MFColor", "[1 1 1]", "(1,2)", kNone, kNone, " 1 1 1\n",
     {"Line 7: Bounds error: cannot set a MFColor field using this value"}},
    {"MFFloat", "[1, 2]", "(5,6,7)", kNone, kNone, " [ 5, 6, 7 ]\n", {}},
    {"MFFloat", "[1, 2]", "9", 1, kNone, " [ 1, 9 ]\n", {}},
    {"MFFloat", "[1, 2]", "(1,2)", 0, kNone, " [ 1, 2 ]\n", {}},
    {"MFFloat", "[1, 2]", "9", 2, kNone, " [ 1, 2 ]\n", {}},
    {"MFFloat", "[1, 2]", "9", 0, 0, " [ 1, 2 ]\n",
     {"Line 7: Bounds error: cannot set a MFFloat field using this value "}},
    {"MFFloat", "[1, 2]", "\"s\"", kNone, kNone, " [ 1, 2 ]\n",
     {"Line 7: Bounds error: cannot set a MFFloat field using this value"}},
    {"MFFloat", "[=(1,2)]", "9", 0, kNone, " [ 1, 2 ]\n", {kDefinedSet}},
    {"MFLong", "[1]", "3", 0, 0, " 1\n", {"Line 7: Bounds error: cannot set a MFLong field using this value "}},
    {"MFLong", "[1]", "3", kNone, kNone, " 1\n", {"Line 7: Bounds error: cannot set a MFLong field using this value"}},
    {"MFString", "[\"a\", \"b\"]", "\"c\"", 1, kNone, " [ \"a\",\n\t\"c\" ]\n", {}},
    {"MFString", "[\"a\", \"b\"]", "\"c\"", kNone, kNone, " [ \"a\",\n\t\"b\" ]\n",
     {"Line 7: Bounds error: cannot set a MFString field using this value "}},
    {"MFString", "[\"a\", \"b\"]", "\"c\"", 2, kNone, " [ \"a\",\n\t\"b\" ]\n",
     {"Line 7: Bounds error: cannot set a MFString field using this value "}},
};
INSTANTIATE_TEST_SUITE_P(Lists, FieldSetTest, ::testing::ValuesIn(kListSets));

struct AppendCase {
  const char* type;
  const char* value;
  const char* appended;
  const char* written;
  Messages messages;
};

std::ostream& operator<<(std::ostream& out, const AppendCase& c) {
  return out << c.type << " " << c.value << " += " << c.appended;
}

class FieldAppendTest : public FieldFixture, public ::testing::WithParamInterface<AppendCase> {};

TEST_P(FieldAppendTest, AppendsOrRefuses) {
  const AppendCase& c = GetParam();
  std::unique_ptr<QvField> field = holding(c.type, c.value);
  Term* value = term(c.appended);
  ASSERT_EQ(takeMessages(), Messages{});
  field->appendValue(value, at());
  EXPECT_EQ(takeMessages(), c.messages);
  EXPECT_EQ(written(*field), c.written);
}

const AppendCase kAppends[] = {
    {"SFFloat", "1", "2", " 1\n", {"Line 7: Cannot append values to this field"}},
    {"SFVec3f", "1 2 3", "(1,2,3)", " 1 2 3\n", {"Line 7: Cannot append values to this field"}},
    {"MFVec3f", "1 2 3", "(4,5,6)", " [ 1 2 3,\n\t4 5 6 ]\n", {}},
    {"MFVec3f", "1 2 3", "(4,5,6);(7,8,9)", " [ 1 2 3,\n\t4 5 6,\n\t7 8 9 ]\n", {}},
    {"MFVec3f", "[ ]", "(4,5,6)", " 4 5 6\n", {}},
    {"MFVec3f", "1 2 3", "(1,2)", " 1 2 3\n",
     {"Line 7: Bounds error: cannot append to a MFVec3f field using this value "}},
    {"MFVec3f", "=(1,2,3)", "(4,5,6)", " 1 2 3\n",
     {"Line 2: This field is defined by a field expression - cannot append to its value"}},
    {"MFVec2f", "1 2", "(1,2,3)", " 1 2\n",
     {"Line 7: Bounds error: cannot append to a MFVec2f field using this value"}},
    {"MFVec4f", "1 2 3 4", "1", " 1 2 3 4\n",
     {"Line 7: Bounds error: cannot append to a MFVec4f field using this value "}},
    {"MFColor", "1 1 1", "1", " 1 1 1\n", {"Line 7: Bounds error: cannot append to a MFColor field using this value"}},
    {"MFFloat", "1", "2", " [ 1, 2 ]\n", {}},
    {"MFFloat", "1", "(3,4)", " [ 1, 3, 4 ]\n", {}},
    {"MFFloat", "1", "\"s\"", " 1\n", {"Line 7: Bounds error: cannot append to a MFFloat field using this value"}},
    {"MFFloat", "[=(1,2)]", "3", " [ 1, 2 ]\n",
     {"Line 7: This field is defined by a field expression - cannot append to its value"}},
    {"MFLong", "1", "\"s\"", " 1\n", {"Line 7: Bounds error: cannot append to a MFLong field using this value "}},
    {"MFString", "\"a\"", "\"b\"", " [ \"a\",\n\t\"b\" ]\n", {}},
    {"MFString", "\"a\"", "1", " \"a\"\n",
     {"Line 7: Bounds error: cannot append to a MFString field using this value"}},
};
INSTANTIATE_TEST_SUITE_P(All, FieldAppendTest, ::testing::ValuesIn(kAppends));

struct GetCase {
  const char* type;
  const char* value;
  int i;
  int j;
  const char* result;  // describeTerm() of the term
  Messages messages;
};

std::ostream& operator<<(std::ostream& out, const GetCase& c) {
  return out << c.type << " " << c.value << " [" << c.i << "][" << c.j << "]";
}

class FieldGetTest : public FieldFixture, public ::testing::WithParamInterface<GetCase> {};

TEST_P(FieldGetTest, GivesTheSelectedValue) {
  const GetCase& c = GetParam();
  std::unique_ptr<QvField> field = holding(c.type, c.value);
  Term* result = field->GetLumericValue(c.i, c.j, at());
  EXPECT_EQ(takeMessages(), c.messages);
  EXPECT_EQ(describeTerm(result), c.result);
}

const GetCase kSingleGets[] = {
    {"SFFloat", "2.5", kNone, kNone, "scalar 2.5", {}},
    {"SFFloat", "2.5", 0, kNone, "scalar 2.5", {}},
    {"SFFloat", "2.5", 1, kNone, "none", {"Line 7: Bounds error: tried to access SFFloat[1]"}},
    {"SFLong", "3", 2, kNone, "none", {"Line 7: Bounds error: tried to access SFLong[2]"}},
    {"SFLong", "(1,2)", 0, kNone, "vector (1,2)", {}},
    {"SFBool", "TRUE", kNone, kNone, "scalar 1", {}},
    {"SFBool", "(1,2)", kNone, kNone, "scalar 0", {}},
    {"SFBool", "1", 2, kNone, "scalar 0", {"Line 7: Bounds error: tried to access SFBool[2]"}},
    {"SFString", "\"a\"", 0, kNone, "string \"a\"", {}},
    {"SFString", "3", kNone, kNone, "none", {}},
    {"SFString", "\"a\"", 1, kNone, "none", {"Line 7: Bounds error: tried to access SFString[1]"}},
    {"SFNode", "Ball", kNone, kNone, "string \"Ball\"", {}},
    {"SFNode", "Ball", 1, kNone, "none", {"Line 7: Bounds error: tried to access SFNode[1]"}},
    {"SFVec3f", "1 2 3", kNone, kNone, "vector (1,2,3)", {}},
    {"SFVec3f", "1 2 (1,2)", 2, kNone, "vector (1,2)", {}},
    {"SFVec3f", "1 2 (1,2)", kNone, kNone, "vector (1,2,0)", {}},
    {"SFVec3f", "1 2 3", 3, kNone, "none", {"Line 2: Bounds error: tried to access SFVec3f[3]"}},
    {"SFVec3f", "1 2 3", kNone, 1, "none", {"Line 2: Bounds error: tried to access SFVec3f[-1]"}},
    {"SFVec3f", "=(1,2,3)", 1, kNone, "scalar 2", {}},
    {"SFVec3f", "=(1,2,3)", 3, kNone, "none", {"Line 2: Bounds error: tried to access SFVec3f[3]"}},
    {"SFVec3f", "=(1,2)", kNone, kNone, "none", {"Line 2: Cannot define a SFVec3f using this value"}},
    {"SFVec2f", "1 2", 2, kNone, "none", {"Line 2: Bounds error: tried to access SFVec2f[2]"}},
    {"SFVec4f", "1 2 3 4", 4, kNone, "none", {"Line 7: Bounds error: tried to access SFVec4f[4]"}},
    {"SFVec4f", "=1", 0, kNone, "none", {"Line 7: Cannot define a SFVec4f using this value"}},
    {"SFColor", "1 0.5 0", kNone, kNone, "vector (1,0.5,0)", {}},
    {"SFColor", "1 0.5 0", 1, kNone, "scalar 0.5", {}},
    {"SFColor", "1 0.5 0", 5, kNone, "scalar 0", {"Line 7: Bounds error: tried to access SFColor[5]"}},
    {"SFColor", "=(1,2)", kNone, kNone, "vector (1,2)", {}},
    {"SFColor", "=(1,2)", 0, kNone, "none", {"Line 7: Bounds error: tried to access SFColor[0]"}},
    {"SFColor", "=(1,2,3)", 2, kNone, "scalar 3", {}},
    {"SFRotation", "0 0 1 2", 2, kNone, "scalar 1", {}},
    {"SFRotation", "0 0 1 2", 3, kNone, "scalar 2", {}},
    {"SFRotation", "0 0 1 2", 4, kNone, "scalar 0", {"Line 7: Bounds error: tried to access SFRotation[4]"}},
    {"SFRotation", "=(1,2,3,4)", 3, kNone, "scalar 4", {}},
    {"SFRotation", "=(1,2,3,4)", 5, kNone, "none", {"Line 7: Bounds error: tried to access SFRotation[5]"}},
    {"SFRotation", "=(1,2,3,4)", 1, 1, "none", {}},
    {"SFRotation", "=(1,2)", kNone, kNone, "vector (1,2)", {}},
    {"SFRotation", "=(1,2)", 0, kNone, "none", {"Line 7: Invalid value"}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 5 1", 3, 2, "scalar 5", {}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 5 1", 4, 0, "scalar 0",
     {"Line 7: Bounds error: tried to access SFMatrix[4][0]"}},
    {"SFMatrix", "1 0 0 0 0 1 0 0 0 0 1 0 0 0 5 1", 1, kNone, "scalar 0",
     {"Line 7: Bounds error: tried to access SFMatrix[1][-1]"}},
    {"SFMatrix", "=1", kNone, kNone, "scalar 1", {}},
    {"SFMatrix", "=1", 0, 0, "scalar 0", {"Line 7: Expression does not evaluate to a 4 by 4 matrix"}},
    {"SFImage", "0 0 0", kNone, kNone, "none", {"Not Implemented - SFImage::GetLumericValue"}},
};
INSTANTIATE_TEST_SUITE_P(Single, FieldGetTest, ::testing::ValuesIn(kSingleGets));

const char kRows[] = "[1 2 3, =(4,5,6);(7,8,9)]";

const GetCase kListGets[] = {
    {"MFVec3f", kThree, kNone, kNone, "matrix (1,2,3;4,5,6)", {}},
    {"MFVec3f", kThree, 1, 2, "vector (4,5,6)", {}},
    {"MFVec3f", kThree, 5, kNone, "none", {"Line 7: Bounds error: tried to access MFVec3f[5][*]"}},
    {"MFVec3f", kRows, kNone, kNone, "matrix (1,2,3;4,5,6;7,8,9)", {}},
    {"MFVec3f", kRows, 2, kNone, "vector (7,8,9)", {}},
    {"MFVec3f", kRows, 1, 2, "scalar 6", {}},
    {"MFVec3f", kRows, 5, kNone, "none", {"Line 7: Bounds error: tried to access MFVec3f[5]"}},
    {"MFVec3f", kRows, 0, 3, "none", {"Line 7: Bounds error: tried to access MFVec3f[0][3]"}},
    {"MFVec2f", "[=(1,2,3)]", kNone, kNone, "matrix ()", {}},
    {"MFVec4f", "[1 2 3 4]", 1, kNone, "none", {"Line 7: Bounds error: tried to access MFVec4f[1][*]"}},
    {"MFColor", "[1 0 0, 0 1 0]", 1, 1, "scalar 1", {}},
    {"MFColor", "[1 0 0, 0 1 0]", 2, kNone, "none", {"Line 7: Bounds error: tried to access MFColor[2]"}},
    {"MFColor", "[1 0 0, 0 1 0]", 0, 3, "none", {"Line 7: Bounds error: tried to access MFColor[0][3]"}},
    {"MFFloat", "[1, 2]", kNone, kNone, "vector (1,2)", {}},
    {"MFFloat", "[1, 2]", 1, 5, "scalar 2", {}},
    {"MFFloat", "[1, 2]", 2, kNone, "scalar 0", {"Line 7: Bounds error: tried to access MFFloat[2]"}},
    {"MFFloat", "[=(1,2), 3]", kNone, kNone, "vector (1,2,3)", {}},
    {"MFFloat", "[=(1,2), 3]", 2, kNone, "scalar 3", {}},
    {"MFFloat", "[=(1,2), 3]", 0, 0, "none", {}},
    {"MFFloat", "[=(1,2), 3]", 3, kNone, "none", {"Line 7: Bounds error: tried to access MFFloat[3]"}},
    {"MFLong", "[1]", 1, kNone, "scalar 0", {"Line 7: Bounds error: tried to access MFLong[1]"}},
    {"MFString", "[\"a\", \"b\"]", 1, kNone, "string \"b\"", {}},
    {"MFString", "[\"a\", 3]", 1, kNone, "none", {}},
    {"MFString", "[\"a\", \"b\"]", kNone, kNone, "none",
     {"Line 7: Cannot access the MFString field:  Not implemented"}},
    {"MFString", "[\"a\", \"b\"]", 2, kNone, "none", {"Line 7: Bounds error: tried to access MFString[2]"}},
};
INSTANTIATE_TEST_SUITE_P(Lists, FieldGetTest, ::testing::ValuesIn(kListGets));

// Numbers stored from the expression language keep six significant digits.
TEST_F(FieldFixture, AssignedNumbersKeepSixDigits) {
  std::unique_ptr<QvField> field = holding("SFVec3f", "0 0 0");
  field->SetLumericValue(term("3.14159265"), 0, kNone, at());
  field->SetLumericValue(term("1234567"), 1, kNone, at());
  EXPECT_EQ(describeTerm(field->GetLumericValue(kNone, kNone, at())), "vector (3.14159,1.23457e+06,0)");
  precisionQuantum = 0;
  EXPECT_EQ(written(*field), " 3.14159 1.23457e+06 0\n");
}

TEST_F(FieldFixture, AssignedStringReadsBackAndCopiesQuoted) {
  std::unique_ptr<QvField> field = make("SFString");
  field->SetLumericValue(term("\"a, b\""), kNone, kNone, at());
  std::unique_ptr<QvField> copy(field->clone());
  EXPECT_EQ(written(*field), " \"a, b\"\n");
  EXPECT_EQ(written(*copy), " \"a, b\"\n");
  EXPECT_EQ(takeMessages(), Messages{});
}

}  // namespace
}  // namespace lumeric
