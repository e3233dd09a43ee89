// A run-time failure: the only exception that passes between procedures. It is thrown where the
// failure happens and caught by the wrapper around each procedure (shell/error_report.h).
#pragma once

#include <cstdint>
#include <string_view>

namespace verlume {

// The classic numbers of the failures that can happen.
enum class FailureNumber : std::int32_t {
  InvalidProcedureCall = 5,
  Overflow = 6,
  TypeMismatch = 13,
  InternalError = 51,
  FileNotFound = 53,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccessError = 75,
  PathNotFound = 76,
  AddressInUse = 10048,
  Cancelled = 32755,
};

// The classic English description of a number.
constexpr std::u16string_view DescriptionOf(FailureNumber number) {
  switch (number) {
    case FailureNumber::InvalidProcedureCall:
      return u"Invalid procedure call or argument";
    case FailureNumber::Overflow:
      return u"Overflow";
    case FailureNumber::TypeMismatch:
      return u"Type mismatch";
    case FailureNumber::InternalError:
      return u"Internal error";
    case FailureNumber::FileNotFound:
      return u"File not found";
    case FailureNumber::DiskFull:
      return u"Disk full";
    case FailureNumber::PermissionDenied:
      return u"Permission denied";
    case FailureNumber::PathFileAccessError:
      return u"Path/File access error";
    case FailureNumber::PathNotFound:
      return u"Path not found";
    case FailureNumber::AddressInUse:
      return u"Address in use";
    case FailureNumber::Cancelled:
      return u"Cancel was selected";
  }
  return u"";
}

struct RunTimeFailure {
  FailureNumber number;
  std::u16string_view description;  // always that of the number: no text of a user gets into it

  explicit RunTimeFailure(FailureNumber failure)
      : number(failure), description(DescriptionOf(failure)) {}
};

}  // namespace verlume
