// How the translator reaches files: scene files are opened for reading only
// when they are not directories, and a confined run (theRun.confinedTo set)
// reads and writes only regular files inside one directory tree.
#ifndef LUMERIC_CORE_FILEACCESS_H
#define LUMERIC_CORE_FILEACCESS_H

#include <cstdio>
#include <string>

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

// Whether `path` names the same file as one of the open streams on the
// context's file stack (the files being read).
bool isFileBeingRead(const char* path);

}  // namespace lumeric

#endif  // LUMERIC_CORE_FILEACCESS_H
