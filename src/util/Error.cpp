#include "util/Error.h"

#include <utility>

namespace vantrel {

namespace {

const char* UsualDescription(std::int32_t plngNumber) {
  switch (plngNumber) {
    case vntErrInvalidCall:
      return "Invalid procedure call or argument";
    case vntErrOverflow:
      return "Overflow";
    case vntErrTypeMismatch:
      return "Type mismatch";
    case vntErrOutOfStack:
      return "Out of stack space";
    case vntErrObjectNotSet:
      return "Object variable not set";
    case vntErrFileFormat:
      return "Invalid file format";
    case vntErrDuplicateKey:
      return "This key is already associated with an element of this collection";
    case vntErrNoCurrentRow:
      return "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a current record.";
    case vntErrNoSuchColumn:
      return "Item cannot be found in the collection corresponding to the requested name or ordinal.";
    case vntErrObjectClosed:
      return "Operation is not allowed when the object is closed.";
    case vntErrNoConnection:
      return "The connection cannot be used to perform this operation. It is either closed or invalid in this context.";
    case vntErrElementNotFound:
      return "Element not found";
    default:
      return "Application-defined or object-defined error";
  }
}

}  // namespace

Error::Error(std::int32_t plngNumber) : Error(plngNumber, UsualDescription(plngNumber)) {}

Error::Error(std::int32_t plngNumber, std::string pstrDescription) : Number(plngNumber), Description(std::move(pstrDescription)) {}

}  // namespace vantrel
