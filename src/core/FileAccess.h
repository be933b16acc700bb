// How the translator reaches files: scene files are opened for reading only
// when they are not directories, a confined run (theRun.confinedTo set)
// reads and writes only regular files inside one directory tree, and every
// file a run reads is remembered so that no output of the run replaces it.
#ifndef LUMERIC_CORE_FILEACCESS_H
#define LUMERIC_CORE_FILEACCESS_H

#include <cstdio>
#include <string>
#include <vector>

namespace lumeric {

// Opens `path` with mode "r".  A directory is refused like a file that
// cannot be opened: null with `errorNumber` EISDIR.  Otherwise
// `errorNumber` is the system error number of a failed open (0 on success).
FILE* openForReading(const char* path, int& errorNumber);

// The directory that holds `path`, with symbolic links and ".." resolved;
// empty when it cannot be resolved.
std::string resolvedDirectoryOf(const char* path);

// Why a confined run may not read or write `path`; null when it may.  With
// no confinement every path is allowed.  A path for writing may name a
// file that does not exist yet; its directory must then be inside.
const char* confinementRefusal(const char* path, bool forWriting);

// A file as the system knows it, whatever name or link reached it.
struct FileIdentity {
  unsigned long long device = 0;
  unsigned long long inode = 0;
};

// The identity of the file `path` names (its links followed); false when it
// names none.
bool fileIdentityOf(const char* path, FileIdentity& identity);

// Records the file behind `stream` in theRun.filesRead.
void noteFileRead(FILE* stream);

// Whether `path` (its links followed) names one of `files`; false when it
// names nothing.
bool isAmongFiles(const char* path, const std::vector<FileIdentity>& files);

// Whether `path` names a file the run has read or is reading: one in
// theRun.filesRead or one of the open streams on the context's file stack.
bool isFileBeingRead(const char* path);

// The directory part of `path` with its final '/' ("mk/" for "mk/a.vlm"),
// empty when `path` has none.
std::string directoryPrefixOf(const std::string& path);

}  // namespace lumeric

#endif  // LUMERIC_CORE_FILEACCESS_H
