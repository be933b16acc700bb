// The map of the code (docs/architecture.md) is held to the code: no
// include runs against its table of layers, except where it names the
// exception, and every name it puts in backticks still exists.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "docs/ArchitectureMap.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

namespace fs = std::filesystem;

const std::string kRoot = LUMERIC_TEST_DIR "/..";
const std::string kMapPath = kRoot + "/docs/architecture.md";

LayerMap theMap() {
  std::vector<std::string> problems;
  LayerMap map = readLayerMap(readFile(kMapPath), problems);
  for (const std::string& problem : problems) ADD_FAILURE() << "docs/architecture.md " << problem;
  return map;
}

const char kSmallMap[] =
    "# Map\n\n## Layers\n\n"
    "| # | Folder | Purpose | May include |\n|---|---|---|---|\n"
    "| 1 | `core/` | base | nothing else |\n"
    "| 2 | `scene/` | graph | `core/` |\n"
    "| 3 | `reader/` | reading | 1-2 |\n"
    "| 4 | `expr/` | sibling of the reader | 1-2 |\n"
    "| 5 | `driver/` | the run | everything |\n"
    "| 6 | `cli/` | the command | everything |\n"
    "| 6 | `web/engine/` | the playground | 1-5 |\n\n"
    "Only `web/engine/Engine.cpp` includes `cli/Format.h`.\n\n## Next\n\n"
    "| 9 | `later/` | not a layer | 1 |\n";

TEST(ArchitectureMap, ReadsTheLayerTable) {
  std::vector<std::string> problems;
  LayerMap map = readLayerMap(kSmallMap, problems);
  EXPECT_TRUE(problems.empty());
  ASSERT_EQ(map.layers.size(), 7u);
  EXPECT_EQ(map.layers[0].folder, "core/");
  EXPECT_TRUE(map.layers[0].mayInclude.empty());
  EXPECT_EQ(map.layers[1].mayInclude, std::set<int>({1}));
  EXPECT_EQ(map.layers[3].mayInclude, std::set<int>({1, 2}));
  EXPECT_EQ(map.layers[4].mayInclude, std::set<int>({1, 2, 3, 4}));
  ASSERT_EQ(map.exceptions.size(), 1u);
  EXPECT_EQ(map.exceptions[0].first, "web/engine/Engine.cpp");
  EXPECT_EQ(map.exceptions[0].second, "cli/Format.h");

  problems.clear();
  readLayerMap("## Layers\n| 1 | core | x | nothing else |\n| 2 | `scene/` | x | `nowhere/` |\n| 3 | `a/` | x | y |\n",
               problems);
  ASSERT_EQ(problems.size(), 3u);
  EXPECT_EQ(problems[0], "line 2: a layer row is not | n | `folder/` | ... | ... |");
  EXPECT_EQ(problems[1], "line 3: names no layer nowhere/");
  EXPECT_EQ(problems[2], "line 4: says nothing it may include");
}

TEST(ArchitectureMap, FindsIncludesAgainstTheTable) {
  std::vector<std::string> problems;
  const LayerMap map = readLayerMap(kSmallMap, problems);
  struct Case {
    const char* path;
    const char* include;
    bool forbidden;
  };
  const Case cases[] = {
      {"src/core/A.cpp", "core/B.h", false},          {"src/core/A.cpp", "scene/Node.h", true},
      {"src/scene/A.h", "core/B.h", false},           {"src/reader/A.cpp", "scene/Node.h", false},
      {"src/reader/A.cpp", "expr/Term.h", true},      {"src/expr/A.cpp", "reader/Input.h", true},
      {"src/expr/sub/A.cpp", "expr/Term.h", false},   {"src/driver/A.cpp", "expr/Term.h", false},
      {"src/scene/A.cpp", "lumeric/lumeric.h", false}, {"web/engine/Engine.cpp", "cli/Format.h", false},
      {"web/engine/Other.cpp", "cli/Format.h", true}, {"web/engine/Engine.cpp", "cli/Other.h", true},
      {"src/cli/main.cpp", "driver/Run.h", false},    {"tests/Any.cpp", "cli/Format.h", false},
      {"src/expr/Lexer.h", "Grammar.h", true},
  };
  for (const Case& c : cases) {
    const std::string text = std::string("// one\n#include <vector>\n#include \"") + c.include + "\"\n";
    std::vector<std::string> found = forbiddenIncludes(map, c.path, text);
    if (c.forbidden) {
      ASSERT_EQ(found.size(), 1u) << c.path << " including " << c.include;
      EXPECT_EQ(found[0].compare(0, found[0].find(" without"), std::string(c.path) + ":3: includes " + c.include), 0)
          << found[0];
    } else {
      EXPECT_TRUE(found.empty()) << c.path << " including " << c.include;
    }
  }
}

TEST(ArchitectureMap, LooksNamesUp) {
  CodeIndex index;
  index.root = kRoot;
  addToIndex(index, "class QvWidget { void reset(); }; struct RunState;\nrun --deps FILE\n");
  struct Case {
    const char* text;
    bool exists;
  };
  const Case cases[] = {
      {"QvWidget", true},
      {"QvGadget", false},
      {"RunState::reset()", true},
      {"RunState::restart()", false},
      {"QvWidget::copyInto(target)", false},
      {"PointerList<T>", false},
      {"QvName", true},
      {"XyName", false},
      {"--deps", true},
      {"--watch", false},
      {"fields [ SFFloat value ]", true},
      {"core/", true},
      {"core/RunState.h", true},
      {"core/NoSuchFile.h", false},
      {"nodes/QvName.{h,cpp}", true},
      {"nodes/QvName.{h,cxx}", false},
      {"tests/support/SceneRunner.h", true},
      {"tests/support/Nothing.h", false},
  };
  for (const Case& c : cases) EXPECT_EQ(namesSomething(index, c.text), c.exists) << c.text;
}

TEST(ArchitectureMap, FindsQvNamesAgainstTheRule) {
  const char markdown[] = "## Names\n- fixed: `QvContext`\n## Later\n`QvLater`\n";
  const std::vector<std::string> sources = {
      "class QvNode { };\nclass QvField;\nclass QvContext {};\nclass QvLater {};\nclass QvHelper : public Other {};",
      "template <class D, class B = QvNode>\nclass QvStandardNode : public B {};\n"
      "class QvCube : public QvStandardNode<QvCube> {};\nstruct QvSFFloatTraits {};\n"
      "class Base : public QvField {};\nclass QvSFFloat final : public Copyable<QvSFFloat, Base> {};\n"
      "struct QvGadgetTraits {};\nclass QvLoopy : public QvLoopy2 {};\nclass QvLoopy2 : public QvLoopy {};\n"};
  EXPECT_EQ(misnamedClasses(markdown, sources),
            (std::vector<std::string>{"QvGadgetTraits", "QvHelper", "QvLater", "QvLoopy", "QvLoopy2"}));
}

TEST(ArchitectureMap, EveryQvNameFollowsTheRule) {
  std::vector<std::string> sources;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot + "/src")) {
    const std::string extension = entry.path().extension().string();
    if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp")) {
      sources.push_back(readFile(entry.path().string()));
    }
  }
  for (const std::string& name : misnamedClasses(readFile(kMapPath), sources)) {
    ADD_FAILURE() << name << " takes the Qv prefix against the rule of docs/architecture.md (## Names)";
  }
}

TEST(ArchitectureMap, NoIncludeRunsAgainstTheLayers) {
  const LayerMap map = theMap();
  EXPECT_GE(map.layers.size(), 10u);
  size_t files = 0;
  for (const char* folder : {"src", "web/engine"}) {
    for (const auto& entry : fs::recursive_directory_iterator(kRoot + "/" + folder)) {
      const std::string extension = entry.path().extension().string();
      if (!entry.is_regular_file() || (extension != ".h" && extension != ".cpp" && extension != ".y")) continue;
      ++files;
      const std::string path = fs::relative(entry.path(), kRoot).generic_string();
      for (const std::string& include : forbiddenIncludes(map, path, readFile(entry.path().string()))) {
        ADD_FAILURE() << include << ", which docs/architecture.md does not allow";
      }
    }
  }
  EXPECT_GE(files, 300u);
}

TEST(ArchitectureMap, EveryBacktickedNameExists) {
  const CodeIndex index = indexCode(kRoot, {"src", "include", "web/engine", "web/src", "CMakeLists.txt", "cmake", "fuzz", "scripts"});
  const std::vector<std::string> texts = backtickedTexts(readFile(kMapPath));
  EXPECT_GE(texts.size(), 200u);
  for (const std::string& text : texts) {
    EXPECT_TRUE(namesSomething(index, text)) << "docs/architecture.md names `" << text << "`, found nowhere";
  }
}

}  // namespace
}  // namespace lumeric
