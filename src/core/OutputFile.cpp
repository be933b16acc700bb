#include "core/OutputFile.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstdio>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumeric {

namespace {

// The temporary name beside `target`: ".NAME.XXXXXX" in its directory.
std::string temporaryName(const std::string& target, unsigned attempt) {
  const size_t slash = target.find_last_of('/');
  const std::string directory = slash == std::string::npos ? "" : target.substr(0, slash + 1);
  const std::string base = slash == std::string::npos ? target : target.substr(slash + 1);
  char suffix[32];
  std::snprintf(suffix, sizeof suffix, ".%ld%03u", static_cast<long>(getpid()), attempt);
  return directory + "." + base + suffix;
}

}  // namespace

FILE* OutputFile::open(const char* target, int& errorNumber) {
  abandon();
  target_ = target;
  destination_ = target;
  struct stat status;
  const bool exists = stat(target, &status) == 0;
  if (exists && S_ISDIR(status.st_mode)) {
    errorNumber = EISDIR;
    return nullptr;
  }
  // Only a regular file (or a new one) can be replaced; a device, a pipe
  // or a dangling link is written where it is, as it always was.
  if ((exists && !S_ISREG(status.st_mode)) || (!exists && lstat(target, &status) == 0)) {
    errno = 0;
    stream_ = std::fopen(target, "w");
    errorNumber = stream_ == nullptr ? errno : 0;
    return stream_;
  }
  // A link to a regular file keeps being a link: its file is replaced.
  char resolvedTarget[PATH_MAX];
  if (exists && realpath(target, resolvedTarget) != nullptr) destination_ = resolvedTarget;
  // O_EXCL never follows or reuses what another process left; 0666 lets
  // the umask decide the permissions, as creating the target would.
  int fd = -1;
  std::string name;
  for (unsigned attempt = 0; fd < 0 && attempt < 100; ++attempt) {
    name = temporaryName(destination_, attempt);
    fd = ::open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && errno != EEXIST) break;
  }
  if (fd < 0) {
    errorNumber = errno;
    return nullptr;
  }
  // A file replaced keeps its permissions.
  if (exists) fchmod(fd, status.st_mode & 07777);
  stream_ = fdopen(fd, "w+");
  if (stream_ == nullptr) {
    errorNumber = errno;
    ::close(fd);
    ::unlink(name.c_str());
    return nullptr;
  }
  temporary_ = name;
  errorNumber = 0;
  return stream_;
}

OutputFile::Outcome OutputFile::commit(int writeError, int& errorNumber) {
  if (stream_ == nullptr) return kReplaced;
  errorNumber = writeError;
  errno = 0;
  if (errorNumber == 0 && (std::fflush(stream_) != 0 || std::ferror(stream_))) errorNumber = errno != 0 ? errno : EIO;
  if (errorNumber != 0) {
    abandon();
    return kWriteFailed;
  }
  FILE* stream = stream_;
  stream_ = nullptr;
  Outcome outcome = kReplaced;
  if (std::fclose(stream) != 0) {
    outcome = kCloseFailed;
  } else if (!temporary_.empty() && std::rename(temporary_.c_str(), destination_.c_str()) != 0) {
    outcome = kWriteFailed;
  }
  if (outcome != kReplaced) {
    errorNumber = errno != 0 ? errno : EIO;
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
  }
  temporary_.clear();
  return outcome;
}

void OutputFile::abandon() {
  if (stream_ != nullptr) std::fclose(stream_);
  stream_ = nullptr;
  if (!temporary_.empty()) ::unlink(temporary_.c_str());
  temporary_.clear();
}

}  // namespace lumeric
