// Every test program wires the library's layers as the entry points do, so
// that tests which read or copy nodes without a translation run find the
// factories and the end-of-run release installed.
#include "driver/LibrarySetUp.h"

namespace {

const bool installed = (lumeric::installLibraryOperations(), true);

}  // namespace
