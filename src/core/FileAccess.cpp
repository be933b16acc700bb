#include "core/FileAccess.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

#include <sys/stat.h>

#include "core/QvContext.h"
#include "core/RunState.h"

namespace lumeric {

namespace {

// `path` with every link and ".." resolved; empty when it does not exist.
std::string resolved(const char* path) {
  char buffer[PATH_MAX];
  if (realpath(path, buffer) == nullptr) return std::string();
  return buffer;
}

std::string directoryPart(const std::string& path) {
  size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  if (slash == 0) return "/";
  return path.substr(0, slash);
}

bool isWithin(const std::string& path, const std::string& root) {
  if (path == root) return true;
  const std::string prefix = root == "/" ? root : root + "/";
  return path.compare(0, prefix.size(), prefix) == 0;
}

constexpr char kOutside[] = "Outside the input's directory";
constexpr char kNotRegular[] = "Not a regular file";

}  // namespace

FILE* openForReading(const char* path, int& errorNumber) {
  errno = 0;
  FILE* file = std::fopen(path, "r");
  errorNumber = file == nullptr ? errno : 0;
  struct stat status;
  if (file != nullptr && fstat(fileno(file), &status) == 0 && S_ISDIR(status.st_mode)) {
    std::fclose(file);
    errorNumber = EISDIR;
    return nullptr;
  }
  return file;
}

std::string resolvedDirectoryOf(const char* path) { return resolved(directoryPart(path).c_str()); }

const char* confinementRefusal(const char* path, bool forWriting) {
  const std::string& root = theRun.confinedTo;
  if (root.empty()) return nullptr;
  const std::string target = resolved(path);
  struct stat status;
  if (!target.empty()) {
    if (!isWithin(target, root)) return kOutside;
    if (stat(target.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return kNotRegular;
    return nullptr;
  }
  // Nothing to resolve: a dangling link is not a regular file, and a name
  // that does not exist may be created only in a directory inside.
  if (lstat(path, &status) == 0) return kNotRegular;
  if (!forWriting) return nullptr;
  const std::string directory = resolved(directoryPart(path).c_str());
  if (directory.empty() || !isWithin(directory, root)) return kOutside;
  return nullptr;
}

void noteFileRead(FILE* stream) {
  struct stat status;
  if (stream != nullptr && fstat(fileno(stream), &status) == 0) {
    theRun.filesRead.push_back(FileIdentity{static_cast<unsigned long long>(status.st_dev),
                                            static_cast<unsigned long long>(status.st_ino)});
  }
}

bool fileIdentityOf(const char* path, FileIdentity& identity) {
  struct stat status;
  if (stat(path, &status) != 0) return false;
  identity = FileIdentity{static_cast<unsigned long long>(status.st_dev), static_cast<unsigned long long>(status.st_ino)};
  return true;
}

bool isAmongFiles(const char* path, const std::vector<FileIdentity>& files) {
  struct stat target;
  if (stat(path, &target) != 0) return false;
  for (const FileIdentity& file : files) {
    if (file.device == static_cast<unsigned long long>(target.st_dev) &&
        file.inode == static_cast<unsigned long long>(target.st_ino)) {
      return true;
    }
  }
  return false;
}

std::string directoryPrefixOf(const std::string& path) {
  const size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

bool isFileBeingRead(const char* path) {
  if (isAmongFiles(path, theRun.filesRead)) return true;
  struct stat target;
  if (stat(path, &target) != 0) return false;
  // The open streams identify the files: a name on the stack may have been
  // found under the input directory, not where it reads from here.
  for (int k = 0; k <= theContext.fileDepth; ++k) {
    struct stat reading;
    FILE* stream = theContext.files[k].stream;
    if (stream != nullptr && fstat(fileno(stream), &reading) == 0 && reading.st_dev == target.st_dev &&
        reading.st_ino == target.st_ino) {
      return true;
    }
  }
  return false;
}

}  // namespace lumeric
