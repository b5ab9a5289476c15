#pragma once

#include <string_view>

namespace vantrel {

/// The texts of data/schema: the tables of the newest version, and the step to it from the version before.
std::string_view SqliteSchema();
std::string_view SqliteUpgrade();
std::string_view PostgresSchema();
std::string_view PostgresUpgrade();

}  // namespace vantrel
