// Failures: a number that callers can act on, and a text that a message box can show.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace vantrel {

/// The numbers of failures.
enum ErrorNumber : std::int32_t {
  vntErrInvalidCall = 5,          ///< "Invalid procedure call or argument": no such key, index or first item
  vntErrOverflow = 6,             ///< "Overflow": a number that its type cannot hold
  vntErrTypeMismatch = 13,        ///< "Type mismatch": a value that cannot become the wanted type
  vntErrOutOfStack = 28,          ///< a token game that would not end; see TokenGame
  vntErrObjectNotSet = 91,        ///< "Object variable not set": a reference to nothing was followed
  vntErrFileFormat = 321,         ///< "Invalid file format": a file of another kind, or a damaged one
  vntErrDuplicateKey = 457,       ///< "This key is already associated with an element of this collection"
  vntErrNoCurrentRow = 3021,      ///< a row set that has no current row, or whose row is gone
  vntErrNoSuchColumn = 3265,      ///< a row set without the column that was asked for
  vntErrObjectClosed = 3704,      ///< a recordset or connection that is closed
  vntErrNoConnection = 3709,      ///< a connection that cannot be used
  vntErrElementNotFound = 35601,  ///< "Element not found": a list or tree has no such entry
  vntErrStatement = -2147217900,  ///< a database refused a statement; the description is the database's
  vntErrDatabase = -2147467259    ///< a database that cannot be opened, read or written; the description names it
};

/// Thrown for every failure of the system.
class Error : public std::exception {
 public:
  /// Takes the usual description of the number.
  explicit Error(std::int32_t plngNumber);
  Error(std::int32_t plngNumber, std::string pstrDescription);

  const char* what() const noexcept override { return Description.c_str(); }

  std::int32_t Number;
  std::string Description;  ///< one line, fit for a message box
};

}  // namespace vantrel
