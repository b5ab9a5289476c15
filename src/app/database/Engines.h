// Finds the engine for an address.
#pragma once

#include <memory>

#include "app/database/DatabaseAddress.h"
#include "database/Connection.h"

namespace vantrel {

/// All throw Error: the engine's error for the address, or that this program was built without the engine.
std::shared_ptr<Connection> OpenConnection(const DatabaseAddress& pobjAddress);
/// Makes the tables, and the file if it is missing. Refuses a database that has them.
void CreateDatabase(const DatabaseAddress& pobjAddress);
/// Upgrades tables of the previous version to the newest one, in one transaction.
void UpgradeDatabase(const DatabaseAddress& pobjAddress);

}  // namespace vantrel
