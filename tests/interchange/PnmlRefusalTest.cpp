#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

using test::FileWith;
using test::RefusalOf;
using testing::HasSubstr;
using testing::StartsWith;

struct Fault {
  const char* Content;
  const char* Said;
};

void PrintTo(const Fault& pobjFault, std::ostream* pobjStream) { *pobjStream << pobjFault.Said; }

/// A fault inside a net. The content begins on line 2.
class NetFault : public testing::TestWithParam<Fault> {};

TEST_P(NetFault, IsOneLineWithThePlace) {
  EXPECT_EQ(RefusalOf(FileWith("\n" + std::string(GetParam().Content))), std::string("net.pnml: ") + GetParam().Said);
}

INSTANTIATE_TEST_SUITE_P(
    Ids, NetFault,
    testing::Values(Fault{"<place/>", "a place without an id (line 2, column 1)"},
                    Fault{"<page>\n  <transition id=''/></page>", "a transition without an id (line 3, column 3)"},
                    Fault{"<referencePlace ref='p'/>", "a referencePlace without an id (line 2, column 1)"},
                    Fault{"<place id='x'/>\r\n<page>\r\n<transition id='x'/></page>", "the id \"x\" is used twice (line 4, column 1)"},
                    Fault{"<place id='x'/><referencePlace id='x' ref='x'/>", "the id \"x\" is used twice (line 2, column 16)"},
                    Fault{"<referencePlace id='r'/>", "the reference \"r\" refers to nothing (line 2, column 1)"},
                    Fault{"<referencePlace id='r' ref='q'/>", "the reference \"r\" to \"q\" leads nowhere (line 2, column 1)"},
                    Fault{"<referencePlace id='r' ref='r'/>",
                          "the reference \"r\" to \"r\" closes a circle of references (line 2, column 1)"},
                    Fault{"<referencePlace id='a' ref='b'/><referencePlace id='b' ref='c'/><referencePlace id='c' ref='b'/>",
                          "the reference \"c\" to \"b\" closes a circle of references (line 2, column 65)"},
                    Fault{"<transition id='t'/><referencePlace id='r' ref='t'/>",
                          "the reference \"r\" to \"t\" takes a place for a transition or the other way round (line 2, column 21)"}));

INSTANTIATE_TEST_SUITE_P(Arcs, NetFault,
                         testing::Values(Fault{"<arc id='a'/>", "the arc \"a\" has no source (line 2, column 1)"},
                                         Fault{"<place id='p'/><arc id='a' source='p'/>",
                                               "the arc \"a\" has no target (line 2, column 16)"},
                                         Fault{"<place id='p'/><arc id='a' source='p' target='P'/>",
                                               "the arc \"a\" has the target \"P\", which is not there (line 2, column 16)"},
                                         Fault{"<place id='p'/><referencePlace id='q' ref='p'/><arc id='a' source='p' target='q'/>",
                                               "the arc \"a\" joins two places (line 2, column 48)"},
                                         Fault{"<transition id='t'/><arc source='t' target='t'/>",
                                               "the arc without an id joins two transitions (line 2, column 21)"},
                                         Fault{"<place id='p'/><page id='g'/><arc id='a' source='p' target='g'/>",
                                               "the arc \"a\" has the target \"g\", which is not there (line 2, column 30)"},
                                         Fault{"<place id='p'/><arc id='a\n&#10;\x7F' source='p' target='p'/>",
                                               "the arc \"a   \" joins two places (line 2, column 16)"}));

std::string WithMarking(const std::string& pstrText) {
  return FileWith("<place id='p'><initialMarking><text>" + pstrText + "</text></initialMarking></place>");
}

std::string WithWeight(const std::string& pstrText) {
  return FileWith("<place id='p'/><transition id='t'/><arc id='a' source='p' target='t'><inscription><text>" + pstrText +
                  "</text></inscription></arc>");
}

std::string WithPosition(const std::string& pstrAttributes) {
  return FileWith("<place id='p'><graphics><position " + pstrAttributes + "/></graphics></place>");
}

TEST(PnmlRefusal, NumbersThatAreNone) {
  for (const char* text : {"-1", "1.5", "1.0", "2147483648", "1e3", "0x10", "A", "[]", "1 2", "NaN", "Default,", "Default,x", "Red,1"}) {
    EXPECT_THAT(RefusalOf(WithMarking(text)), HasSubstr("the initial marking \"" + std::string(text) + "\" of the place \"p\""));
  }
  for (const char* text : {"0", "-2", "x", "1/2", "1.0", "99999999999", "Default,0"}) {
    EXPECT_THAT(RefusalOf(WithWeight(text)), HasSubstr("the weight \"" + std::string(text) + "\" of the arc \"a\""));
  }
  for (const char* text : {"", "nan", "inf", "-infinity", "1e8", "-10000001", "1e999", "12,5", "1 ", "0x1p3", "+-1", "five"}) {
    EXPECT_THAT(RefusalOf(WithPosition("x='1' y='" + std::string(text) + "'")), HasSubstr("the coordinate y=\"" + std::string(text)));
  }
}

TEST(PnmlRefusal, PositionWithHalfItsNumbers) {
  EXPECT_THAT(RefusalOf(WithPosition("x='1'")), HasSubstr("a position without y (line 1, column"));
}

TEST(PnmlRefusal, SecondMarkingOfAPlace) {
  const std::string marking = "<initialMarking><text>1</text></initialMarking>";
  EXPECT_THAT(RefusalOf(FileWith("<place id='p'>" + marking + marking + "</place>")),
              HasSubstr("a second initial marking of the place \"p\" (line 1, column"));
}

TEST(PnmlRefusal, XmlThatIsNoNet) {
  EXPECT_EQ(RefusalOf("\n <html><body/></html>"), "net.pnml: not PNML: the root element is \"html\" (line 2, column 2)");
  EXPECT_EQ(RefusalOf("<pnml><toolspecific><net/></toolspecific></pnml>"), "net.pnml: there is no net in the file");
}

TEST(PnmlRefusal, EndlessIdIsShortenedBetweenCharacters) {
  std::string id;
  for (int letter = 0; letter < 1000; ++letter) id += "x\xC3\xA4";
  const std::string said = RefusalOf(FileWith("<place id='" + id + "'/><place id='" + id + "'/>"));
  EXPECT_LT(said.size(), 400U);
  EXPECT_THAT(said, HasSubstr("x...\" is used twice"));
}

TEST(PnmlRefusal, PlaceIsCountedInTheFilesOwnCharacters) {
  const std::string rest = "'/><place/></net></pnml>";
  EXPECT_THAT(RefusalOf("<pnml><net><place id='\xC3\xA4" + rest), HasSubstr("column 28"));
  EXPECT_THAT(RefusalOf("<?xml version='1.0' encoding='latin1'?>\n<pnml><net><place id='\xE4" + rest), HasSubstr("(line 2, column 27)"));
}

TEST(PnmlHostile, EntitiesAreRefusedAndNotExpanded) {
  const std::string bomb = R"(<!DOCTYPE pnml [<!ENTITY a "ha"><!ENTITY b "&a;&a;&a;&a;">]><pnml>&b;</pnml>)";
  EXPECT_EQ(RefusalOf(bomb), "net.pnml: a DOCTYPE that declares entities is refused (line 1, column 17)");
}

TEST(PnmlHostile, DepthIsRefusedBeforeAnythingRecurses) {
  std::string deep;
  for (int depth = 0; depth < 1'000'000; ++depth) deep += "<page>";
  EXPECT_EQ(RefusalOf(FileWith(deep)), "net.pnml: elements nested deeper than 256 are refused (line 1, column " +
                                           std::to_string(FileWith("").find("</") + 254 * 6 + 1) + ")");
}

TEST(PnmlHostile, LongChainOfReferencesIsFollowed) {
  constexpr int kLength = 200'000;
  std::string chain = "<place id='0'/>";
  for (int number = kLength; number > 0; --number) {
    chain += "<referencePlace id='" + std::to_string(number) + "' ref='" + std::to_string(number - 1) + "'/>";
  }
  chain += "<transition id='t'/><arc source='" + std::to_string(kLength) + "' target='t'/>";
  EXPECT_EQ(test::Outline(test::Read(FileWith(chain))), "P 0; T t; 0>t*1; ");
}

TEST(PnmlHostile, TruncatedOrDamagedFileIsReadOrRefused) {
  const std::string file = "<?xml version='1.0'?><!-- c --><!DOCTYPE pnml [<!ELEMENT a EMPTY>]>" +
                           FileWith(
                               "<place id='p'><name><text><![CDATA[a]]>&lt;</text></name></place><transition id='t'/>"
                               "<page id='t'><net><place id='p'/></net></page><referencePlace id='r' ref='p'/>"
                               "<arc source='r' target='t'><graphics><position x='1' y='2'/></graphics></arc>");
  ASSERT_EQ(RefusalOf(file), "");
  for (std::size_t at = 0; at < file.size(); ++at) {
    EXPECT_THAT(RefusalOf(file.substr(0, at)), StartsWith("net.pnml: not XML: "));
    for (const char byte : {'<', '>', '&', '"', '\'', '/', '!', ']', ' ', '0', '\0', '\xFF'}) {
      std::string damaged = file;
      damaged[at] = byte;
      EXPECT_NO_FATAL_FAILURE(RefusalOf(damaged));
    }
  }
}

}  // namespace

}  // namespace vantrel
