// Run-time faults. A fault travels up the C++ stack to the nearest handler of
// the language (a command's guard, a function call's guard); with none, the
// process ends with the fatal box.
#pragma once

#include <stdexcept>
#include <string>

namespace tamrix {

class RuntimeFault : public std::runtime_error {
 public:
  RuntimeFault(long number, std::string description)
      : std::runtime_error(description), number_(number), description_(std::move(description)) {}

  long Number() const { return number_; }
  const std::string& Description() const { return description_; }

 private:
  long number_;
  std::string description_;
};

// The error numbers of the run-time, with their standard descriptions.
enum FaultNumber : long {
  kInvalidCall = 5,
  kOverflow = 6,
  kOutOfMemory = 7,
  kSubscriptOutOfRange = 9,
  kDivisionByZero = 11,
  kTypeMismatch = 13,
  kOutOfStackSpace = 28,
  kBadFileNameOrNumber = 52,
  kFileNotFound = 53,
  kFileAlreadyOpen = 55,
  kDeviceIoError = 57,
  kFileAlreadyExists = 58,
  kDiskFull = 61,
  kInputPastEndOfFile = 62,
  kTooManyFiles = 67,
  kDeviceUnavailable = 68,
  kPermissionDenied = 70,
  kDiskNotReady = 71,
  kPathFileAccessError = 75,
  kPathNotFound = 76,
  kObjectNotSet = 91,
  kInvalidUseOfNull = 94,
  kInvalidPropertyValue = 380,
  kNotSupported = 438,
  // An error raised by the run-time itself: object error 1 (0x80040001).
  kRaisedByTamrix = -2147221503,
};

std::string FaultDescription(long number);

// A fault with the standard description of its number.
[[noreturn]] void Throw(long number);

}  // namespace tamrix
