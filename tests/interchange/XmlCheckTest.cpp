#include "interchange/XmlCheck.h"

#include <string>

#include <gtest/gtest.h>

#include "interchange/XmlFault.h"

namespace vantrel {

namespace {

/// The fault as `offset: what`; empty when there is no fault.
std::string FaultOf(const std::string& pstrText, std::size_t plngDepth = 256) {
  try {
    CheckXml(pstrText, plngDepth);
  } catch (const XmlFault& fault) {
    return std::to_string(fault.Offset()) + ": " + fault.what();
  }
  return {};
}

class WellFormed : public testing::TestWithParam<const char*> {};

TEST_P(WellFormed, IsTaken) { EXPECT_EQ(FaultOf(GetParam()), ""); }

INSTANTIATE_TEST_SUITE_P(
    , WellFormed,
    testing::Values("<a/>", "<?xml version='1.0'?>\n<!-- - -><& --><a b=\"'>\" c = '\"' ><b /></a >\n<!----><?p <&?>",
                    "<a><![CDATA[<&]]]>]]>&amp;&#65;&#x10FFFF;</a>", "<\xC3\xA4:b.c-d_1/>",
                    "<!DOCTYPE a PUBLIC \"[>\" 'x' [<!ELEMENT a (b)> <!-- ]> --> <?p ]> ?> <!ATTLIST a b CDATA '>]'>]><a/>"));

struct Malformed {
  const char* Text;
  const char* Fault;
};

void PrintTo(const Malformed& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.Text; }

class MalformedXml : public testing::TestWithParam<Malformed> {};

TEST_P(MalformedXml, IsRefusedAtTheFault) { EXPECT_EQ(FaultOf(GetParam().Text), GetParam().Fault); }

INSTANTIATE_TEST_SUITE_P(
    , MalformedXml,
    testing::Values(Malformed{"", "0: not XML: there is no element in the file"},
                    Malformed{"  <!-- x -->", "0: not XML: there is no element in the file"},
                    Malformed{"x<a/>", "0: not XML: text outside the root element"},
                    Malformed{"<a/>&amp;", "4: not XML: text outside the root element"},
                    Malformed{"<a/><b/>", "4: not XML: a second root element \"<b>\""},
                    Malformed{"<a><b></a>", "6: not XML: \"</a>\" where \"</b>\" is due"},
                    Malformed{"<a/></a>", "4: not XML: \"</a>\" closes nothing"},
                    Malformed{"<a><b>", "6: not XML: the text ends before \"</b>\""}, Malformed{"<a", "0: not XML: \"<a>\" has no end"},
                    Malformed{"<a></a", "3: not XML: an end tag without '>'"},
                    Malformed{"< a/>", "1: not XML: a '<' that begins no element"},
                    Malformed{"<a>1 < 2</a>", "6: not XML: a '<' that begins no element"},
                    Malformed{"<a b=1/>", "5: not XML: an attribute's value without quotes"},
                    Malformed{"<a b/>", "4: not XML: an attribute without '='"},
                    Malformed{"<a b='1/>", "5: not XML: an attribute's value without an end"},
                    Malformed{"<a b='<'/>", "6: not XML: a '<' within an attribute's value"},
                    Malformed{"<a b='1'c='2'/>", "8: not XML: a letter that does not belong into \"<a>\""},
                    Malformed{"<a b='1' c='2' b='3'/>", "0: not XML: the attribute \"b\" twice in \"<a>\""},
                    Malformed{"<a><!-- a -- b --></a>", "10: not XML: \"--\" within a comment"},
                    Malformed{"<a><!-- a --->", "10: not XML: \"--\" within a comment"},
                    Malformed{"<a><!-- </a>", "3: not XML: a comment without an end"},
                    Malformed{"<a><![CDATA[ </a>", "3: not XML: a CDATA section without an end"},
                    Malformed{"<a>R & D</a>", "5: not XML: an '&' that begins no entity"},
                    Malformed{"<a>&nbsp;</a>", "3: not XML: the unknown entity \"&nbsp;\""},
                    Malformed{"<a b='&x;'/>", "6: not XML: the unknown entity \"&x;\""},
                    Malformed{"<a>&#0;</a>", "3: not XML: the unknown entity \"&#0;\""},
                    Malformed{"<a>&#xD800;</a>", "3: not XML: the unknown entity \"&#xD800;\""},
                    Malformed{"<!DOCTYPE a [<!-- -->  ", "0: not XML: a DOCTYPE without an end"},
                    Malformed{"<!DOCTYPE a [<!ENTITY % b 'c'>]><a/>", "13: a DOCTYPE that declares entities is refused"},
                    Malformed{"<a><!DOCTYPE a></a>", "4: not XML: a '<' that begins no element"}));

TEST(XmlCheck, DepthLimitIsTheLastDepthTaken) {
  EXPECT_EQ(FaultOf("<a><b><c/><c/></b></a>", 3), "");
  EXPECT_EQ(FaultOf("<a><b><c/><c/></b></a>", 2), "6: elements nested deeper than 2 are refused");
}

}  // namespace

}  // namespace vantrel
