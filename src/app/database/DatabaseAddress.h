// Where a database is.
#pragma once

#include <string>

namespace vantrel {

/// A file of SQLite, or the address of a PostgreSQL server: postgresql://USER@HOST/NAME.
class DatabaseAddress {
 public:
  explicit DatabaseAddress(std::string pstrText);

  const std::string& Text() const { return mstrText; }
  bool IsServer() const;
  /// For messages: the address without its password.
  std::string Shown() const;

 private:
  std::string mstrText;
};

}  // namespace vantrel
