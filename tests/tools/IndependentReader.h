// Checks written scenes with the independent VRML 1.0 reader (vrml1check,
// built on Coin) from GoogleTest tests:
//
//   SceneResult result = translateText(scene);
//   EXPECT_TRUE(LoadsInIndependentReader(result.output));
//
// The reader's path comes from LUMERIC_VRML1CHECK_PATH, which tools.cmake
// defines for lumeric_tests when vrml1check is built. Without it the check
// cannot run: IndependentReaderAvailable() is false, and
// LoadsInIndependentReader succeeds and records the property
// "independent_reader" = "not built" on the test, so a test that depends on
// the reader can GTEST_SKIP() instead.
#ifndef LUMERIC_TESTS_TOOLS_INDEPENDENTREADER_H
#define LUMERIC_TESTS_TOOLS_INDEPENDENTREADER_H

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace lumeric {

inline bool IndependentReaderAvailable() {
#ifdef LUMERIC_VRML1CHECK_PATH
  return access(LUMERIC_VRML1CHECK_PATH, X_OK) == 0;
#else
  return false;
#endif
}

// Succeeds when `sceneText` (a whole written file) loads in vrml1check;
// otherwise fails with the reader's messages and the scene text.
inline testing::AssertionResult LoadsInIndependentReader(const std::string& sceneText) {
#ifdef LUMERIC_VRML1CHECK_PATH
  if (!IndependentReaderAvailable()) {
    return testing::AssertionFailure() << "vrml1check is not at " << LUMERIC_VRML1CHECK_PATH;
  }
  char path[] = "/tmp/lumeric-reader-XXXXXX.wrl";
  int fd = mkstemps(path, 4);
  if (fd < 0) return testing::AssertionFailure() << "cannot create a scratch file";
  FILE* file = fdopen(fd, "wb");
  size_t written = file != nullptr ? std::fwrite(sceneText.data(), 1, sceneText.size(), file) : 0;
  bool closed = file != nullptr && std::fclose(file) == 0;
  if (written != sceneText.size() || !closed) {
    std::remove(path);
    return testing::AssertionFailure() << "cannot write the scratch file " << path;
  }
  // Leak detection is off inside vrml1check (Coin is not instrumented); the
  // test's own ASAN_OPTIONS must not turn it back on.
  std::string command = std::string("ASAN_OPTIONS=detect_leaks=0 '") + LUMERIC_VRML1CHECK_PATH +
                        "' read '" + path + "' 2>&1";
  std::string messages;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) {
    std::remove(path);
    return testing::AssertionFailure() << "cannot run " << command;
  }
  char buffer[4096];
  size_t got = 0;
  while ((got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) messages.append(buffer, got);
  int status = pclose(pipe);
  std::remove(path);
  if (status != -1 && WIFEXITED(status) && WEXITSTATUS(status) == 0) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << "the scene does not load in the independent reader:\n"
                                     << messages << "--- scene:\n"
                                     << sceneText;
#else
  (void)sceneText;
  testing::Test::RecordProperty("independent_reader", "not built");
  return testing::AssertionSuccess();
#endif
}

}  // namespace lumeric

#endif  // LUMERIC_TESTS_TOOLS_INDEPENDENTREADER_H
