// Run-time errors of the program's number and date rules. They stop at the event border: in the show they
// end it without a message, in the dialog they become the documented message.
#pragma once

#include <stdexcept>

namespace base {

class RunTimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Text that cannot be read as the number or date that is needed.
class TypeMismatch : public RunTimeError {
 public:
  TypeMismatch() : RunTimeError("type mismatch") {}
};

// A number outside the range of the type that is to hold it.
class Overflow : public RunTimeError {
 public:
  Overflow() : RunTimeError("overflow") {}
};

// A value that a control's property cannot take, such as the index of an entry that is not there.
class InvalidPropertyValue : public RunTimeError {
 public:
  InvalidPropertyValue() : RunTimeError("invalid property value") {}
};

}  // namespace base
