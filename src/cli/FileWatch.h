// --watch: waiting for a change to any of the files a run read, through the
// system's file notifications (inotify).  The directories holding the files
// are watched and events are matched by name, so that a file an editor
// replaces (writing a new file and renaming it over the old one) is still
// followed.  Changes that come close together count as one: the wait ends
// only once the files have been quiet for a moment.
#ifndef LUMERIC_CLI_FILEWATCH_H
#define LUMERIC_CLI_FILEWATCH_H

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace lumeric {

class FileWatch {
 public:
  FileWatch();
  ~FileWatch();
  FileWatch(const FileWatch&) = delete;
  FileWatch& operator=(const FileWatch&) = delete;

  // False when notifications cannot be had; `error` says why.
  bool usable(std::string& error) const;
  // Follows exactly `paths` from now on (as named: relative to the current
  // directory), watching any directory not yet watched.
  void follow(const std::vector<std::string>& paths);

  enum Outcome { kChanged, kStopped };
  // Waits until a followed file changes and then `quietMs` milliseconds pass
  // without a further change (kChanged), or until `stopFd` is readable
  // (kStopped).
  Outcome wait(int stopFd, int quietMs);

 private:
  // Reads the pending events; true when one concerns a followed file.
  bool readEvents();

  int fd_ = -1;
  int initError_ = 0;
  std::map<int, std::string> directories_;        // by watch descriptor
  std::set<std::pair<std::string, std::string>> files_;  // directory, name
};

// The directory part of `path` ("." for none) and its last name.
std::pair<std::string, std::string> splitPath(const std::string& path);

// SIGINT and SIGTERM no longer end the process but make the returned file
// descriptor readable (and stopRequested() true), so that a run under way
// finishes its output first.  -1 when that cannot be set up.
int catchStopSignals();
bool stopRequested();

}  // namespace lumeric

#endif  // LUMERIC_CLI_FILEWATCH_H
