// What a failing operation gives back once its message is posted.  A Failure
// converts to false and to a null pointer of any type, so that every failure
// path is one line whatever the function returns:
//
//   if (file == nullptr) return reportAtExpression(&name, "Cannot open ...");
#ifndef LUMERIC_CORE_FAILURE_H
#define LUMERIC_CORE_FAILURE_H

namespace lumeric {

struct Failure {
  constexpr operator bool() const { return false; }
  template <class T>
  constexpr operator T*() const {
    return nullptr;
  }
};

}  // namespace lumeric

#endif  // LUMERIC_CORE_FAILURE_H
