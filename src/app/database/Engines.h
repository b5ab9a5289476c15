// Which engine serves an address.
#pragma once

#include <memory>

#include "app/database/DatabaseAddress.h"
#include "database/Connection.h"

namespace vantrel {

/// All throw Error: what the engine says of the address, or that this program was built without the engine.
std::shared_ptr<Connection> OpenConnection(const DatabaseAddress& pobjAddress);
/// Makes the tables, and a file where it is missing. Refuses a database that has them.
void CreateDatabase(const DatabaseAddress& pobjAddress);
/// Brings tables of the version before to the newest one, in one transaction.
void UpgradeDatabase(const DatabaseAddress& pobjAddress);

}  // namespace vantrel
