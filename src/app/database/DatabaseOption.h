// The option of every command that uses a database.
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
  /// The named database, or the default one, which is made if it is missing.
  DatabaseAddress Existing() const;
  /// The same without making it.
  DatabaseAddress Address() const;

 private:
  std::string mstrAddress;
};

}  // namespace vantrel
