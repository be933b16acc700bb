// Terms as short texts for test expectations.
#ifndef LUMERIC_TESTS_SUPPORT_TERMTEXT_H
#define LUMERIC_TESTS_SUPPORT_TERMTEXT_H

#include <string>

#include "expr/Term.h"

namespace lumeric {

// "scalar 7", "vector (1,2)", "matrix (1,2;3,4)", "string \"a\"" or "none".
std::string describeTerm(const Term* term);

}  // namespace lumeric

#endif  // LUMERIC_TESTS_SUPPORT_TERMTEXT_H
