#include "core/QvAtom.h"

#include <cstring>

#include "core/QvAtomPool.h"

namespace lumeric {

const char QvAtom::kEmptyText[1] = {'\0'};

QvAtom::QvAtom(const char* text) : QvAtom(text, text == nullptr ? 0 : std::strlen(text)) {}

QvAtom::QvAtom(const char* text, size_t length)
    : text_(length == 0 ? kEmptyText : QvAtomPool::instance().intern(text, length)) {}

bool QvAtom::named(const char* text) const { return std::strcmp(text_, text) == 0; }

}  // namespace lumeric
