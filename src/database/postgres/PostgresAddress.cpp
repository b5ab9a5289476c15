#include "database/postgres/PostgresAddress.h"

#include <memory>

#include <libpq-fe.h>

#include "database/ServerAddress.h"
#include "util/Error.h"

namespace vantrel {

std::string ShownAddress(const std::string& pstrAddress) {
  return IsServerAddress(pstrAddress) ? ShownServerAddress(pstrAddress) : "(an address that does not begin with postgresql://)";
}

void CheckAddress(const std::string& pstrAddress) {
  const auto refuse = [&](const std::string& why) { throw Error(vntErrDatabase, ShownAddress(pstrAddress) + ": " + why + "."); };
  if (!IsServerAddress(pstrAddress)) refuse("not the address of a PostgreSQL database");
  if (pstrAddress.find('\0') != std::string::npos) refuse("the address contains a NUL character");
  if (PasswordIn(pstrAddress).find_first_of("/@?") != std::string_view::npos) {
    refuse("the characters / @ ? in a user name, a password or a database name are to be written as %2F %40 %3F");
  }
  char* problem = nullptr;
  const std::unique_ptr<PQconninfoOption, void (*)(PQconninfoOption*)> parts(PQconninfoParse(pstrAddress.c_str(), &problem),
                                                                             PQconninfoFree);
  PQfreemem(problem);  // it repeats what it found, perhaps the password
  if (!parts) refuse("not an address that PostgreSQL's client library can read");
}

}  // namespace vantrel
