#include "database/SqlWords.h"

#include <array>
#include <cstddef>
#include <span>

namespace vantrel {

namespace {

struct Entry {
  std::string_view Word;  // in small letters
  SqlWord Class;
};

using enum SqlWord;

constexpr std::array kTwo{Entry{"as", Keyword}, Entry{"by", By},      Entry{"in", In},
                          Entry{"is", Keyword}, Entry{"on", Keyword}, Entry{"or", Keyword}};
constexpr std::array kThree{Entry{"all", Keyword},  Entry{"and", Keyword},  Entry{"asc", Keyword},
                            Entry{"avg", Function}, Entry{"max", Function}, Entry{"min", Function},
                            Entry{"not", Keyword},  Entry{"set", Keyword},  Entry{"sum", Function}};
constexpr std::array kFour{Entry{"desc", Keyword},    Entry{"from", From},    Entry{"into", Keyword}, Entry{"join", Join},
                           Entry{"left", BeforeJoin}, Entry{"like", Keyword}, Entry{"null", Keyword}, Entry{"true", True}};
constexpr std::array kFive{Entry{"count", Function}, Entry{"false", False},      Entry{"group", BeforeBy}, Entry{"inner", Keyword},
                           Entry{"order", BeforeBy}, Entry{"right", BeforeJoin}, Entry{"union", Keyword},  Entry{"where", Keyword}};
constexpr std::array kSix{Entry{"delete", Delete}, Entry{"exists", Keyword}, Entry{"having", Keyword}, Entry{"insert", Insert},
                          Entry{"select", Select}, Entry{"update", Update},  Entry{"values", Keyword}};
constexpr std::array kMore{Entry{"between", Keyword}, Entry{"distinct", Keyword}};

std::span<const Entry> EntriesOfSize(std::size_t plngSize) {
  switch (plngSize) {
    case 2:
      return kTwo;
    case 3:
      return kThree;
    case 4:
      return kFour;
    case 5:
      return kFive;
    case 6:
      return kSix;
    default:
      return kMore;
  }
}

}  // namespace

SqlWord ClassOf(std::string_view pstrWord) {
  if (pstrWord.size() < 2 || pstrWord.size() > 8) return Name;
  const char first = LowerCase(pstrWord.front());
  for (const Entry& entry : EntriesOfSize(pstrWord.size())) {
    if (entry.Word.front() == first && IsSameName(entry.Word, pstrWord)) return entry.Class;
  }
  return Name;
}

bool IsSameName(std::string_view pstrA, std::string_view pstrB) {
  if (pstrA.size() != pstrB.size()) return false;
  for (std::size_t i = 0; i < pstrA.size(); ++i) {
    if (pstrA[i] != pstrB[i] && LowerCase(pstrA[i]) != LowerCase(pstrB[i])) return false;
  }
  return true;
}

}  // namespace vantrel
