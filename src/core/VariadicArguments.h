// The one body of the printf-style functions that hand their arguments on
// as a va_list.
#ifndef LUMERIC_CORE_VARIADICARGUMENTS_H
#define LUMERIC_CORE_VARIADICARGUMENTS_H

#include <cstdarg>

// Inside a function whose last named parameter is `format`: runs `call`,
// in which `args` is the va_list of the arguments after `format`.
#define LUMERIC_WITH_VA_ARGS(call) \
  do {                             \
    va_list args;                  \
    va_start(args, format);        \
    call;                          \
    va_end(args);                  \
  } while (0)

#endif  // LUMERIC_CORE_VARIADICARGUMENTS_H
