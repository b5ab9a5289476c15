// The words that mean something in the statements of the system; every other word is a name.
#pragma once

#include <cstdint>
#include <string_view>

namespace vantrel {

enum class SqlWord : std::uint8_t {
  Name,
  Keyword,   ///< one that is translated like any other
  Function,  ///< a name where no parenthesis follows
  BeforeBy,  ///< ORDER, GROUP: names where no BY follows
  By,
  BeforeJoin,  ///< LEFT, RIGHT: names where no JOIN follows
  Join,
  True,
  False,
  In,
  From,
  Select,
  Insert,
  Update,
  Delete
};

/// Capital and small letters alike.
SqlWord ClassOf(std::string_view pstrWord);

/// Compares names; capital and small letters of ASCII count as equal.
bool IsSameName(std::string_view pstrA, std::string_view pstrB);

constexpr char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

}  // namespace vantrel
