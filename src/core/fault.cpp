#include "core/fault.h"

namespace tamrix {

std::string FaultDescription(long number) {
  switch (number) {
    case kInvalidCall: return "Invalid procedure call or argument";
    case kOverflow: return "Overflow";
    case kOutOfMemory: return "Out of memory";
    case kSubscriptOutOfRange: return "Subscript out of range";
    case kDivisionByZero: return "Division by zero";
    case kTypeMismatch: return "Type mismatch";
    case kOutOfStackSpace: return "Out of stack space";
    case kBadFileNameOrNumber: return "Bad file name or number";
    case kFileNotFound: return "File not found";
    case kFileAlreadyOpen: return "File already open";
    case kDeviceIoError: return "Device I/O error";
    case kFileAlreadyExists: return "File already exists";
    case kDiskFull: return "Disk full";
    case kInputPastEndOfFile: return "Input past end of file";
    case kTooManyFiles: return "Too many files";
    case kDeviceUnavailable: return "Device unavailable";
    case kPermissionDenied: return "Permission denied";
    case kDiskNotReady: return "Disk not ready";
    case kPathFileAccessError: return "Path/File access error";
    case kPathNotFound: return "Path not found";
    case kObjectNotSet: return "Object variable or With block variable not set";
    case kInvalidUseOfNull: return "Invalid use of Null";
    case kInvalidPropertyValue: return "Invalid property value";
    case kNotSupported: return "Object doesn't support this property or method";
    default: return "Application-defined or object-defined error";
  }
}

void Throw(long number) { throw RuntimeFault(number, FaultDescription(number)); }

}  // namespace tamrix
