#include "data/database_layer.h"

#include "core/fault.h"

namespace tamrix {

std::string DatabaseFaultDescription(long number) {
  switch (number) {
    case kNoCurrentRecord:
      return "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
             "current record.";
    case kItemNotFound: return "Item cannot be found in the collection corresponding to the requested name or ordinal.";
    case kBadArguments:
      return "Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another.";
    case kCannotUpdate:
      return "Current Recordset does not support updating. This may be a limitation of the provider, or of the "
             "selected locktype.";
    case kIllegalOperation: return "Operation is not allowed in this context.";
    case kObjectClosed: return "Operation is not allowed when the object is closed.";
    case kCannotFetchBackward: return "Rowset does not support fetching backward.";
    case kRowNotFound:
      return "Row cannot be located for updating. Some values may have been changed since it was last read.";
    default: return FaultDescription(number);
  }
}

void ThrowDatabaseFault(long number) { throw RuntimeFault(number, DatabaseFaultDescription(number)); }

void ThrowProviderError(const std::string& description) { throw RuntimeFault(kProviderError, description); }

}  // namespace tamrix
