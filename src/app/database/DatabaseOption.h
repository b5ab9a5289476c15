// The option that every command over a database has.
#pragma once

#include <string>

#include "app/database/DatabaseAddress.h"

namespace CLI {
class App;
}

namespace vantrel {

/// `--db ADDRESS`; without it the user's own database, made when it is first opened.
class DatabaseOption {
 public:
  void Declare(CLI::App& pobjApp);

  bool IsGiven() const { return !mstrAddress.empty(); }
  /// The database named, or the default one, which is made where it is missing.
  DatabaseAddress Existing() const;
  /// The same without making it.
  DatabaseAddress Address() const;

 private:
  std::string mstrAddress;
};

}  // namespace vantrel
