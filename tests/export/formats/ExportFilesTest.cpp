// Formats by name and extension, and the files of an export written whole
// or not at all.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "export/ExportFormat.h"
#include "export/formats/ExportFiles.h"
#include "support/RecordingView.h"
#include "support/SceneRunner.h"

namespace lumeric {
namespace {

TEST(ExportFormatTest, ByNameAndByExtension) {
  struct Case {
    const char* text;
    bool known;
    ExportFormat format;
  };
  const Case names[] = {{"glb", true, ExportFormat::kGlb}, {"GLTF", true, ExportFormat::kGltf},
                        {"Stl", true, ExportFormat::kStl}, {"obj", true, ExportFormat::kObj},
                        {"x3d", true, ExportFormat::kX3d}, {"wrl", true, ExportFormat::kWrl},
                        {"vrml", false, ExportFormat::kWrl}, {"", false, ExportFormat::kWrl},
                        {"gl", false, ExportFormat::kWrl}};
  for (const Case& c : names) {
    ExportFormat format = ExportFormat::kWrl;
    EXPECT_EQ(exportFormatByName(c.text, format), c.known) << c.text;
    if (c.known) {
      EXPECT_EQ(format, c.format) << c.text;
    }
  }
  const Case paths[] = {{"scene.glb", true, ExportFormat::kGlb}, {"a/b.c/scene.X3D", true, ExportFormat::kX3d},
                        {"out.wrl", true, ExportFormat::kWrl},   {"a.glb/scene", false, ExportFormat::kWrl},
                        {".glb", false, ExportFormat::kWrl},     {"dir/.stl", false, ExportFormat::kWrl},
                        {"scene", false, ExportFormat::kWrl},    {"scene.obj.txt", false, ExportFormat::kWrl}};
  for (const Case& c : paths) {
    ExportFormat format = ExportFormat::kWrl;
    EXPECT_EQ(exportFormatOfPath(c.text, format), c.known) << c.text;
    if (c.known) {
      EXPECT_EQ(format, c.format) << c.text;
    }
  }
}

TEST(ExportFilesTest, EveryFileIsReplacedWhole) {
  ScratchDir dir;
  dir.write("scene.obj", "old obj");
  const ExportedFiles files{{dir.path() + "/scene.obj", "new obj"}, {dir.path() + "/scene.mtl", "new mtl"}};
  RecordingView view;
  ExportMessages messages(&view);
  EXPECT_TRUE(writeExportedFiles(files, messages));
  EXPECT_EQ(dir.read("scene.obj"), "new obj");
  EXPECT_EQ(dir.read("scene.mtl"), "new mtl");
  EXPECT_TRUE(view.messages().empty());
}

TEST(ExportFilesTest, OneFileThatCannotBeWrittenKeepsEveryTarget) {
  ScratchDir dir;
  dir.write("scene.obj", "old obj");
  mkdir((dir.path() + "/scene.mtl").c_str(), 0755);  // a directory where the library goes
  const ExportedFiles files{{dir.path() + "/scene.obj", "new obj"}, {dir.path() + "/scene.mtl", "new mtl"}};
  RecordingView view;
  ExportMessages messages(&view);
  EXPECT_FALSE(writeExportedFiles(files, messages));
  ASSERT_EQ(view.errorCount(), 1);
  EXPECT_EQ(view.messages()[0].text, "Could not open " + dir.path() + "/scene.mtl for writing - Error # 21");
  EXPECT_EQ(dir.read("scene.obj"), "old obj");
  // No temporary file is left behind.
  std::string listing;
  FILE* ls = popen(("ls -A '" + dir.path() + "'").c_str(), "r");
  char buffer[256];
  while (fgets(buffer, sizeof buffer, ls) != nullptr) listing += buffer;
  pclose(ls);
  EXPECT_EQ(listing, "scene.mtl\nscene.obj\n");
}

TEST(ExportFilesTest, StreamGetsTheMainFileOnly) {
  FILE* stream = std::tmpfile();
  ASSERT_NE(stream, nullptr);
  RecordingView view;
  ExportMessages messages(&view);
  EXPECT_TRUE(writeExportToStream({{"-", "main"}, {"-.mtl", "companion"}}, stream, messages));
  std::rewind(stream);
  char buffer[32] = "";
  const size_t got = std::fread(buffer, 1, sizeof buffer - 1, stream);
  std::fclose(stream);
  EXPECT_EQ(std::string(buffer, got), "main");
  FILE* full = std::fopen("/dev/full", "w");
  if (full == nullptr) return;
  EXPECT_FALSE(writeExportToStream({{"-", std::string(100000, 'x')}}, full, messages));
  std::fclose(full);
  ASSERT_EQ(view.errorCount(), 1);
  EXPECT_EQ(view.messages()[0].text, "Could not write standard output - Error # 28");
}

// A streamed file of three and a half pieces: "0123456789" repeated.
ExportedFile streamedFile(const std::string& path) {
  return ExportedFile{path, std::string(), [](FILE* stream) {
                        SpillingText out(stream);
                        for (int i = 0; i < 350000; ++i) {
                          out.text() += "0123456789";
                          if (out.spill() != 0) break;
                        }
                        return out.spill(true);
                      }};
}

TEST(ExportFilesTest, StreamedFileIsWrittenInPiecesAndReplacesItsTargetWhole) {
  ScratchDir dir;
  dir.write("big.stl", "old");
  RecordingView view;
  ExportMessages messages(&view);
  const ExportedFiles files{streamedFile(dir.path() + "/big.stl")};
  EXPECT_TRUE(writeExportedFiles(files, messages));
  const std::string written = dir.read("big.stl");
  EXPECT_EQ(written.size(), 3500000u);
  EXPECT_EQ(written, contentOf(files[0]));
  EXPECT_EQ(written.compare(3499990, 10, "0123456789"), 0);
  FILE* full = std::fopen("/dev/full", "w");
  if (full == nullptr) return;
  EXPECT_FALSE(writeExportToStream(files, full, messages));
  std::fclose(full);
  ASSERT_EQ(view.errorCount(), 1);
  EXPECT_EQ(view.messages()[0].text, "Could not write standard output - Error # 28");
}

}  // namespace
}  // namespace lumeric
