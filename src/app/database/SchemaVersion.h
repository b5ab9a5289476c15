// Which tables a database has.
#pragma once

#include <cstdint>
#include <string>

#include "database/Connection.h"

namespace vantrel {

/// The version of the tables in data/schema, which this program works with.
constexpr std::int32_t kSchemaVersion = 2;

enum class SchemaKind : std::uint8_t {
  Ours,   ///< made by this program, of any version
  Hosts,  ///< made by a host: the columns that every workflow needs, and no version
  None    ///< neither
};

struct SchemaVersion {
  SchemaKind Kind = SchemaKind::None;
  std::int32_t Number = 0;  ///< of ours
  std::string Lack;         ///< of no tables of this system: what the engine missed first
  bool HasNames = false;    ///< of no tables of this system: another one has the names
};

/// Looks at the tables. Throws the Errors of the connection other than those for missing tables and columns.
SchemaVersion FindSchemaVersion(Connection& pobjConnection);

}  // namespace vantrel
