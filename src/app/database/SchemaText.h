#pragma once

#include <string_view>

namespace vantrel {

/// The texts of data/schema/sqlite.sql and data/schema/postgres.sql.
std::string_view SqliteSchema();
std::string_view PostgresSchema();

}  // namespace vantrel
