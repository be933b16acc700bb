#include "writer/SceneWriter.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>

#include "core/RunState.h"

namespace lumeric {
namespace {

// What `write` gives through a writer at `level`.
std::string written(int level, const std::function<void(SceneWriter&)>& write) {
  char* text = nullptr;
  size_t size = 0;
  FILE* out = open_memstream(&text, &size);
  {
    SceneWriter writer(out);
    writer.setLevel(level);
    write(writer);
    EXPECT_EQ(writer.level(), level);
  }
  std::fclose(out);
  std::string result(text, size);
  std::free(text);
  return result;
}

TEST(SceneWriterTest, LinesStartWithOneTabPerLevel) {
  EXPECT_EQ(written(3, [](SceneWriter& out) { out.line("%s {\n", "Cube"); }), "\t\t\tCube {\n");
  EXPECT_EQ(written(0, [](SceneWriter& out) { out.line("}\n"); }), "}\n");
}

TEST(SceneWriterTest, NodeFramesNestOneLevelDeeper) {
  std::string text = written(1, [](SceneWriter& out) {
    out.openNode("Base", "Separator");
    out.openNode(nullptr, "Cube");
    out.line("width 2\n");
    out.closeNode();
    out.openNode("", "Sphere");
    out.closeNode();
    out.closeNode();
  });
  EXPECT_EQ(text,
            "\tDEF Base Separator {\n"
            "\t\tCube {\n\t\t\twidth 2\n\t\t}\n\n"
            "\t\tSphere {\n\t\t}\n\n"
            "\t}\n\n");
}

TEST(SceneWriterTest, NumbersAreRoundedOnlyWhenAsked) {
  double saved = precisionQuantum;
  precisionQuantum = 0.01;
  std::string text = written(0, [](SceneWriter& out) {
    out.number(0.123456).character(' ').rounded(0.123456).character(' ').rounded(-0.001).character(' ').integer(-7);
  });
  precisionQuantum = saved;
  EXPECT_EQ(text, "0.123456 0.12 -0 -7");
}

struct LayoutCase {
  int count;
  ListLayout layout;
  const char* text;
};

TEST(SceneWriterTest, ListLayouts) {
  const ListLayout runsOfThree{3, true, false};
  const LayoutCase cases[] = {
      {0, kOneItemPerLine, " [ ]\n"},
      {1, kOneItemPerLine, " i0\n"},
      {3, kOneItemPerLine, " [ i0,\n\t\ti1,\n\t\ti2 ]\n"},
      {0, kOneLine, " [ ]\n"},
      {1, kOneLine, " [ i0 ]\n"},
      {3, kOneLine, " [ i0, i1, i2 ]\n"},
      {1, runsOfThree, " i0\n"},
      {3, runsOfThree, " [ i0, i1, i2 ]\n"},
      {7, runsOfThree, " [ i0, i1, i2,\n\t\t i3, i4, i5,\n\t\t i6 ]\n"},
  };
  for (const LayoutCase& c : cases) {
    std::string text = written(1, [&c](SceneWriter& out) {
      out.list(c.count, c.layout, [&out](int i) { out.character('i').integer(i); });
    });
    EXPECT_EQ(text, c.text) << c.count << " items, " << c.layout.itemsPerLine << " per line";
  }
}

TEST(SceneWriterTest, LongTextsKeepTheirPlaceAmongBufferedPieces) {
  std::string longText(10000, 'x');
  std::string text = written(0, [&longText](SceneWriter& out) {
    out.text("a");
    out.text(longText.c_str());
    out.format("%s", "b");
    out.format("%s", longText.c_str());
  });
  EXPECT_EQ(text, "a" + longText + "b" + longText);
}

}  // namespace
}  // namespace lumeric
