#include "database/postgres/PostgresAddress.h"

#include <memory>
#include <string_view>

#include <libpq-fe.h>

#include "util/Error.h"

namespace vantrel {

namespace {

constexpr std::string_view kSchemes[] = {"postgresql://", "postgres://"};

std::size_t SchemeLength(std::string_view pstrAddress) {
  for (const auto scheme : kSchemes) {
    if (pstrAddress.starts_with(scheme)) return scheme.size();
  }
  return 0;
}

/// From the colon before the password to the sign behind it, or nothing. Takes in too much rather than too little.
struct PasswordRange {
  explicit PasswordRange(std::string_view pstrAddress) {
    const auto colon = pstrAddress.find(':', SchemeLength(pstrAddress));
    const auto at = pstrAddress.rfind('@');
    if (colon == std::string_view::npos || at == std::string_view::npos || at < colon) return;
    Begin = colon;
    End = at;
  }

  std::size_t Begin = 0, End = 0;
};

}  // namespace

std::string ShownAddress(const std::string& pstrAddress) {
  if (SchemeLength(pstrAddress) == 0) return "(an address that does not begin with postgresql://)";
  std::string shown = pstrAddress;
  const PasswordRange password(shown);
  shown.erase(password.Begin, password.End - password.Begin);
  const auto options = shown.find('?');
  if (options != std::string::npos && shown.find("pass", options) != std::string::npos) shown.erase(options);
  return shown;
}

void CheckAddress(const std::string& pstrAddress) {
  const auto refuse = [&](const std::string& why) { throw Error(vntErrDatabase, ShownAddress(pstrAddress) + ": " + why + "."); };
  if (SchemeLength(pstrAddress) == 0) refuse("not the address of a PostgreSQL database");
  if (pstrAddress.find('\0') != std::string::npos) refuse("the address contains a NUL character");
  const PasswordRange password(pstrAddress);
  const std::string_view between = std::string_view(pstrAddress).substr(password.Begin, password.End - password.Begin);
  if (between.find_first_of("/@?") != std::string_view::npos) {
    refuse("the characters / @ ? in a user name, a password or a database name are to be written as %2F %40 %3F");
  }
  char* problem = nullptr;
  const std::unique_ptr<PQconninfoOption, void (*)(PQconninfoOption*)> parts(PQconninfoParse(pstrAddress.c_str(), &problem),
                                                                             PQconninfoFree);
  PQfreemem(problem);  // it repeats what it found, perhaps the password
  if (!parts) refuse("not an address that PostgreSQL's client library can read");
}

}  // namespace vantrel
