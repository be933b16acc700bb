#include "cli/FileWatch.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace lumeric {

namespace {

// What editors and tools do to a file when they save it: write it in
// place, or make it anew and rename it over the old one.
constexpr uint32_t kChangeEvents = IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_TO | IN_CREATE;

volatile sig_atomic_t theStopRequested = 0;
int theStopPipe[2] = {-1, -1};

void onStopSignal(int) {
  theStopRequested = 1;
  const char byte = 1;
  ssize_t ignored = write(theStopPipe[1], &byte, 1);
  (void)ignored;
}

}  // namespace

std::pair<std::string, std::string> splitPath(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return {".", path};
  return {slash == 0 ? "/" : path.substr(0, slash), path.substr(slash + 1)};
}

FileWatch::FileWatch() {
  fd_ = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
  if (fd_ < 0) initError_ = errno;
}

FileWatch::~FileWatch() {
  if (fd_ >= 0) close(fd_);
}

bool FileWatch::usable(std::string& error) const {
  if (fd_ >= 0) return true;
  error = std::string("cannot watch files: ") + std::strerror(initError_);
  return false;
}

void FileWatch::follow(const std::vector<std::string>& paths) {
  files_.clear();
  for (const std::string& path : paths) {
    const auto parts = splitPath(path);
    files_.insert(parts);
    // Adding a directory already watched gives its descriptor again.
    const int wd = inotify_add_watch(fd_, parts.first.c_str(), kChangeEvents | IN_ONLYDIR);
    if (wd >= 0) directories_[wd] = parts.first;
  }
}

bool FileWatch::readEvents() {
  alignas(inotify_event) char buffer[16 * 1024];
  bool relevant = false;
  for (;;) {
    const ssize_t got = read(fd_, buffer, sizeof buffer);
    if (got <= 0) return relevant;
    for (ssize_t at = 0; at < got;) {
      const inotify_event* event = reinterpret_cast<const inotify_event*>(buffer + at);
      at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
      if (event->mask & IN_Q_OVERFLOW) {
        relevant = true;  // events were lost: any of them may have been ours
        continue;
      }
      if (event->mask & IN_IGNORED) {
        directories_.erase(event->wd);
        continue;
      }
      const auto directory = directories_.find(event->wd);
      if (directory == directories_.end() || event->len == 0) continue;
      relevant = relevant || files_.count({directory->second, event->name}) > 0;
    }
  }
}

FileWatch::Outcome FileWatch::wait(int stopFd, int quietMs) {
  bool changed = false;
  for (;;) {
    pollfd fds[2] = {{fd_, POLLIN, 0}, {stopFd, POLLIN, 0}};
    const int ready = poll(fds, stopFd >= 0 ? 2 : 1, changed ? quietMs : -1);
    if (stopRequested()) return kStopped;
    if (ready == 0) return kChanged;  // quiet since the last change
    if (ready < 0) continue;          // a signal that was not ours
    if ((fds[0].revents & POLLIN) && readEvents()) changed = true;
  }
}

int catchStopSignals() {
  if (pipe2(theStopPipe, O_CLOEXEC | O_NONBLOCK) != 0) return -1;
  struct sigaction action;
  std::memset(&action, 0, sizeof action);
  action.sa_handler = onStopSignal;
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, nullptr);
  sigaction(SIGTERM, &action, nullptr);
  return theStopPipe[0];
}

bool stopRequested() { return theStopRequested != 0; }

}  // namespace lumeric
