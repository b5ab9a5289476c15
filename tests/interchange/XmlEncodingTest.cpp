#include "interchange/XmlEncoding.h"

#include <string>

#include <gtest/gtest.h>

#include "interchange/XmlFault.h"

namespace vantrel {

namespace {

using namespace std::string_literals;

struct Encoded {
  const char* Name;
  std::string Bytes;
  std::string Utf8;
};

void PrintTo(const Encoded& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.Name; }

std::string Declared(const std::string& pstrEncoding, const std::string& pstrRest) {
  return "<?xml version=\"1.0\" encoding='" + pstrEncoding + "' ?>" + pstrRest;
}

/// `<é€😀>` is not a valid element, but the decoder does not check that.
std::string Utf16(bool pblnBigEndian) {
  std::string bytes;
  for (const unsigned unit : {0x3CU, 0xE9U, 0x20ACU, 0xD83DU, 0xDE00U, 0x3EU}) {
    const char high = static_cast<char>(unit >> 8U);
    const char low = static_cast<char>(unit & 0xFFU);
    bytes += pblnBigEndian ? std::string{high, low} : std::string{low, high};
  }
  return bytes;
}

const std::string kThree = "<\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80>";

class Encodings : public testing::TestWithParam<Encoded> {};

TEST_P(Encodings, BecomeUtf8WithoutAMark) {
  XmlText text;
  DecodeXml(GetParam().Bytes, text);
  EXPECT_EQ(text.Utf8, GetParam().Utf8);
}

INSTANTIATE_TEST_SUITE_P(
    , Encodings,
    testing::Values(Encoded{"UTF-8 undeclared", kThree, kThree}, Encoded{"UTF-8 marked", "\xEF\xBB\xBF" + kThree, kThree},
                    Encoded{"mark wins over the declaration", "\xEF\xBB\xBF" + Declared("iso-8859-1", kThree),
                            Declared("iso-8859-1", kThree)},
                    Encoded{"latin-1", Declared("ISO-8859-1", "<\xE9\x80>"), Declared("ISO-8859-1", "<\xC3\xA9\xC2\x80>")},
                    Encoded{"windows-1252", Declared("Windows-1252", "<\xE9\x80>"), Declared("Windows-1252", "<\xC3\xA9\xE2\x82\xAC>")},
                    Encoded{"UTF-16 LE marked", "\xFF\xFE" + Utf16(false), kThree},
                    Encoded{"UTF-16 BE marked", "\xFE\xFF" + Utf16(true), kThree}, Encoded{"UTF-16 LE", Utf16(false), kThree},
                    Encoded{"UTF-16 BE", Utf16(true), kThree},
                    Encoded{"UTF-16 only claimed", Declared("utf-16", kThree), Declared("utf-16", kThree)}));

struct Undecodable {
  const char* Name;
  std::string Bytes;
  std::size_t Offset;
};

void PrintTo(const Undecodable& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.Name; }

class BadEncodings : public testing::TestWithParam<Undecodable> {};

TEST_P(BadEncodings, AreRefusedWhereTheyFail) {
  XmlText text;
  try {
    DecodeXml(GetParam().Bytes, text);
    FAIL() << "decoded as " << text.Utf8;
  } catch (const XmlFault& fault) {
    EXPECT_EQ(fault.Offset(), GetParam().Offset);
  }
}

INSTANTIATE_TEST_SUITE_P(
    , BadEncodings,
    testing::Values(Undecodable{"unknown", Declared("EBCDIC", "<a/>"), 0}, Undecodable{"latin-1 undeclared", "<a b='\xE9'/>", 6},
                    Undecodable{"cut short", "<a>\xE2\x82", 3}, Undecodable{"overlong", "<\xC0\xBC>", 1},
                    Undecodable{"overlong of three", "<\xE0\x80\xBC>", 1}, Undecodable{"surrogate", "<\xED\xA0\x80>", 1},
                    Undecodable{"beyond Unicode", "<\xF4\x90\x80\x80>", 1}, Undecodable{"stray continuation", "<\x80>", 1},
                    Undecodable{"zero byte", "<a>\0</a>"s, 3}, Undecodable{"control character", "<a>\x01</a>", 3},
                    Undecodable{"no such byte", Declared("cp1252", "<\x81>"), Declared("cp1252", "<").size()},
                    Undecodable{"half a unit", "\xFF\xFE<\0a"s, 1}, Undecodable{"lone surrogate", "\xFE\xFF\0<\xDC\0"s, 1}));

}  // namespace

}  // namespace vantrel
