// --watch drives a scene through two changes: one written in place, one
// written as a new file renamed over the old (as many editors save), and
// then a change to a file the second version includes.  Each change gives
// one more run and one summary line; SIGINT ends the command with the last
// complete output in place.  Every wait is bounded, so a hang fails.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <vector>

#include "support/SceneRunner.h"

namespace lumeric {
namespace {

constexpr int kTimeoutMs = 30000;

// The command started in `dir` with its standard error on a pipe.
class WatchedCommand {
 public:
  WatchedCommand(const std::string& dir, const std::vector<std::string>& arguments) {
    int fds[2];
    if (pipe(fds) != 0) return;
    pid_ = fork();
    if (pid_ == 0) {
      dup2(fds[1], 2);
      close(fds[0]);
      close(fds[1]);
      if (chdir(dir.c_str()) != 0) _exit(127);
      std::vector<char*> argv{const_cast<char*>(LUMERIC_CLI_PATH)};
      for (const std::string& a : arguments) argv.push_back(const_cast<char*>(a.c_str()));
      argv.push_back(nullptr);
      execv(LUMERIC_CLI_PATH, argv.data());
      _exit(127);
    }
    close(fds[1]);
    err_ = fds[0];
  }
  ~WatchedCommand() {
    if (pid_ > 0 && !exited_) {
      kill(pid_, SIGKILL);
      waitpid(pid_, nullptr, 0);
    }
    if (err_ >= 0) close(err_);
  }
  bool started() const { return pid_ > 0 && err_ >= 0; }

  // Reads standard error until a line holding `piece` has come since the
  // last call; the lines read go to `lines`.  False at the time limit or
  // when the command ends first.
  bool waitForLine(const std::string& piece, std::string& lines) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(kTimeoutMs);
    for (;;) {
      size_t end;
      while ((end = pending_.find('\n')) != std::string::npos) {
        const std::string line = pending_.substr(0, end + 1);
        pending_.erase(0, end + 1);
        lines += line;
        if (line.find(piece) != std::string::npos) return true;
      }
      const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
      if (left.count() <= 0) return false;
      pollfd fd{err_, POLLIN, 0};
      if (poll(&fd, 1, static_cast<int>(left.count())) <= 0) return false;
      char buffer[4096];
      const ssize_t got = read(err_, buffer, sizeof buffer);
      if (got <= 0) return false;
      pending_.append(buffer, static_cast<size_t>(got));
    }
  }

  // Sends `signal` and waits for the exit; the exit status, or -1 when the
  // command did not end in time (it is then killed).
  int stop(int signal) {
    kill(pid_, signal);
    for (int waited = 0; waited < kTimeoutMs; waited += 10) {
      int status = 0;
      if (waitpid(pid_, &status, WNOHANG) == pid_) {
        exited_ = true;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
      }
      usleep(10000);
    }
    return -1;
  }

 private:
  pid_t pid_ = -1;
  int err_ = -1;
  bool exited_ = false;
  std::string pending_;
};

std::string cubeScene(const std::string& body) { return "#VRML V1.0 ascii\nSeparator {\n" + body + "}\n"; }

// Counts the summary lines in `lines`.
int summaries(const std::string& lines) {
  int count = 0;
  for (size_t at = lines.find("lumeric: ["); at != std::string::npos; at = lines.find("lumeric: [", at + 1)) ++count;
  return count;
}

TEST(Watch, RunsAgainAfterEachChangeAndStopsCleanly) {
  ScratchDir dir;
  dir.write("scene.vlm", cubeScene("\tCube { width 2 }\n"));
  WatchedCommand command(dir.path(), {"--watch", "--message-format", "gnu", "-o", "out.wrl", "scene.vlm"});
  ASSERT_TRUE(command.started());
  std::string lines;

  ASSERT_TRUE(command.waitForLine("] 2 nodes written, 0 errors, 0 warnings", lines)) << lines;
  EXPECT_NE(dir.read("out.wrl").find("width 2"), std::string::npos);

  // Written in place, with a misspelt field: its message and hint, then
  // the summary.
  dir.write("scene.vlm", cubeScene("\tCube { widht 3 }\n"));
  ASSERT_TRUE(command.waitForLine("] 1 node written, 1 error, 0 warnings", lines)) << lines;
  EXPECT_NE(lines.find("scene.vlm:3: error: Unknown field \"widht\"\nscene.vlm:3: note: did you mean \"width\"?\n"),
            std::string::npos)
      << lines;

  // Saved as a new file renamed over the old one; it includes a part.
  dir.write("part.wrl", "#VRML V1.0 ascii\nSphere { radius 1 }\n");
  dir.write("scene.vlm.new", cubeScene("\tINCLUDE part.wrl\n\tCube { width 4 }\n"));
  ASSERT_EQ(std::rename((dir.path() + "/scene.vlm.new").c_str(), (dir.path() + "/scene.vlm").c_str()), 0);
  ASSERT_TRUE(command.waitForLine("] 3 nodes written, 0 errors", lines)) << lines;
  EXPECT_NE(dir.read("out.wrl").find("width 4"), std::string::npos);

  // The included file is followed from that run on.
  dir.write("part.wrl", "#VRML V1.0 ascii\nSeparator { Sphere { radius 5 } }\n");
  ASSERT_TRUE(command.waitForLine("] 4 nodes written, 0 errors", lines)) << lines;
  EXPECT_NE(dir.read("out.wrl").find("radius 5"), std::string::npos);

  EXPECT_EQ(command.stop(SIGINT), 0);
  EXPECT_EQ(summaries(lines), 4) << lines;
  EXPECT_NE(dir.read("out.wrl").find("radius 5"), std::string::npos);
  EXPECT_FALSE(dir.exists("scene.vlm.new"));
}

TEST(Watch, EndsOnSigtermWithTheLastRunsStatus) {
  ScratchDir dir;
  dir.write("scene.vlm", cubeScene("\tCube { width =1/0 }\n"));
  WatchedCommand command(dir.path(), {"--watch", "--message-format", "json", "--lint", "scene.vlm"});
  ASSERT_TRUE(command.started());
  std::string lines;
  ASSERT_TRUE(command.waitForLine("{\"summary\":", lines)) << lines;
  EXPECT_NE(lines.find("\"errors\":1"), std::string::npos) << lines;
  EXPECT_EQ(command.stop(SIGTERM), 1);
}

}  // namespace
}  // namespace lumeric
