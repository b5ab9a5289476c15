#include "app/database/DatabaseAddress.h"

#include <utility>

#include "database/ServerAddress.h"

namespace vantrel {

DatabaseAddress::DatabaseAddress(std::string pstrText) : mstrText(std::move(pstrText)) {}

bool DatabaseAddress::IsServer() const { return IsServerAddress(mstrText); }

std::string DatabaseAddress::Shown() const { return IsServer() ? ShownServerAddress(mstrText) : mstrText; }

}  // namespace vantrel
