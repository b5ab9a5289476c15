#include "interchange/PnmlReader.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

using test::FileWith;
using test::Outline;
using test::Read;

struct ShapeCase {
  const char* Name;
  std::string File;
};

void PrintTo(const ShapeCase& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.Name; }

class Shapes : public testing::TestWithParam<ShapeCase> {};

constexpr const char* kPlace = R"(<place id="p"/>)";
constexpr const char* kTransition = R"(<transition id="t"/>)";
constexpr const char* kArc = R"(<arc id="a" source="p" target="t"><inscription><text> 2 </text></inscription></arc>)";

TEST_P(Shapes, GiveTheSameNet) { EXPECT_EQ(Outline(Read(GetParam().File)), "P p; T t; p>t*2; "); }

INSTANTIATE_TEST_SUITE_P(
    OfOneNet, Shapes,
    testing::Values(ShapeCase{"bare", FileWith(std::string(kPlace) + kTransition + kArc)},
                    ShapeCase{"arcs first", FileWith(std::string(kArc) + kPlace + kTransition)},
                    ShapeCase{"one page", FileWith("<page id='g'>" + std::string(kPlace) + kTransition + kArc + "</page>")},
                    ShapeCase{"pages in pages, ends on different ones", FileWith("<page id='g'>" + std::string(kPlace) + "<page id='h'>" +
                                                                                 kTransition + "</page></page><page>" + kArc + "</page>")},
                    ShapeCase{"a net a level deeper",
                              "<pnml><module><ports/><net>" + std::string(kPlace) + kTransition + kArc + "</net></module></pnml>"},
                    ShapeCase{"no pnml around", "<net>" + std::string(kPlace) + kTransition + kArc + "</net>"},
                    ShapeCase{"prefixes",
                              R"(<x:pnml xmlns:x="u"><x:net><x:page><x:place id="p"/><x:transition id="t"/>
                     <x:arc source="p" target="t"><x:inscription><x:text>2</x:text></x:inscription></x:arc>
                     </x:page></x:net></x:pnml>)"},
                    ShapeCase{"strangers and tools with nets of their own",
                              FileWith(std::string("<toolspecific><place id='x'/><net/></toolspecific><group><place id='y'/></group>") +
                                       kPlace + kTransition + kArc +
                                       "<finalmarkings><marking><place idref='p'><text>1</text></place></marking></finalmarkings>")},
                    ShapeCase{"a comment and a character reference within a number",
                              FileWith(std::string(kPlace) + kTransition +
                                       "<arc source='p' target='t'><inscription><text>&#x32;<!-- two --></text></inscription></arc>")},
                    ShapeCase{"references to references across pages",
                              FileWith("<page><referencePlace id='r1' ref='r2'/><referenceTransition id='s' ref='t'/>"
                                       "<arc source='r1' target='s'><inscription><text>2</text></inscription></arc></page>"
                                       "<page><referencePlace id='r2' ref='p'/></page>" +
                                       std::string(kPlace) + kTransition)},
                    ShapeCase{"the old way of writing values",
                              FileWith(std::string(kPlace) + kTransition +
                                       "<arc source='p' target='t'><inscription><value>Default,2</value></inscription></arc>")},
                    ShapeCase{"the weight as the name of a typed arc", FileWith(std::string(kPlace) + kTransition +
                                                                                "<arc source='p' target='t'><name><text>2</text></name>"
                                                                                "<arctype><text>normal</text></arctype></arc>")}));

TEST(PnmlReader, NameOfAnArcThatIsNoNumberIsNoWeight) {
  const PnmlNet net = Read(FileWith(std::string(kPlace) + kTransition +
                                    "<arc source='p' target='t'><name><text>p -[1]-&gt; t</text></name>"
                                    "<arctype><text>normal</text></arctype></arc>"));
  EXPECT_EQ(net.Arcs[0].Weight, "1");
}

struct ArcKindCase {
  const char* Attribute;
  const char* Child;
  const char* Kind;  // nothing: an ordinary arc
};

class ArcKinds : public testing::TestWithParam<ArcKindCase> {};

TEST_P(ArcKinds, AreNeverTakenForOrdinary) {
  const auto& [attribute, child, kind] = GetParam();
  const std::string file =
      FileWith(std::string(kPlace) + kTransition + "<arc id='a 1' source='p' target='t' " + attribute + ">" + child + "</arc>");
  PnmlOptions lenient;
  lenient.SkipUnsupported = true;
  EXPECT_EQ(Read(file, lenient).Arcs.size(), kind == nullptr ? 1U : 0U);
  if (kind == nullptr) {
    EXPECT_EQ(test::RefusalOf(file), "");
  } else {
    EXPECT_THAT(test::RefusalOf(file), testing::HasSubstr("the arc \"a 1\" is of the kind \"" + std::string(kind) + "\""));
  }
}

INSTANTIATE_TEST_SUITE_P(Spelt, ArcKinds,
                         testing::Values(ArcKindCase{"", "", nullptr}, ArcKindCase{"type='Normal'", "", nullptr},
                                         ArcKindCase{"", "<type><text> ordinary </text></type>", nullptr},
                                         ArcKindCase{"", "<type value=''/><arctype/>", nullptr},
                                         ArcKindCase{"", "<toolspecific><type value='reset'/></toolspecific>", nullptr},
                                         ArcKindCase{"type='INHIBITOR'", "", "INHIBITOR"},
                                         ArcKindCase{"", "<type value='inhibitor'/>", "inhibitor"},
                                         ArcKindCase{"", "<type><text>Reset</text></type>", "Reset"},
                                         ArcKindCase{"", "<arctype><text>read</text></arctype>", "read"},
                                         ArcKindCase{"type='normal'", "<type value='test'/>", "test"},
                                         ArcKindCase{"", "<type value='normal'/><type value='transport'/>", "transport"},
                                         ArcKindCase{"type='timed'", "", "timed"}));

TEST(PnmlReader, TextIsTakenWithoutTheSpacesAroundIt) {
  const PnmlNet net = Read(FileWith(R"(<name><text>
      Orders </text></name><place id="a b"><name><graphics/><text>  in &amp; out
      </text></name></place><place id="q"><name><text> </text></name></place>)"));
  EXPECT_EQ(net.Name, "Orders");
  EXPECT_EQ(net.Nodes[0].Id, "a b");
  EXPECT_EQ(net.Nodes[0].Name, "in & out");
  EXPECT_FALSE(net.Nodes[1].HasName);
}

TEST(PnmlReader, MarkingsAreNumbersOfTokens) {
  const PnmlNet net = Read(FileWith(R"(
      <place id="a"><initialMarking><text>3</text></initialMarking></place>
      <place id="b"><initialMarking><value>Default,4</value></initialMarking></place>
      <place id="c"><initialMarking><text/></initialMarking></place>
      <place id="d"><initialMarking><toolspecific><text>9</text></toolspecific><text>2147483647</text></initialMarking></place>)"));
  std::vector<std::int32_t> markings;
  for (const PnmlNode& node : net.Nodes) markings.push_back(node.InitialMarking);
  EXPECT_THAT(markings, testing::ElementsAre(3, 4, 0, 2147483647));
}

TEST(PnmlReader, OfSeveralNetsTheOneAskedForIsRead) {
  const std::string file = "<pnml><net id='one'><place id='p'/></net><group><net id='two'><place id='q'/></net></group></pnml>";
  EXPECT_EQ(Outline(Read(file)), "P p; ");
  EXPECT_EQ(Outline(Read(file, {"two", false, 0})), "P q; ");
  EXPECT_EQ(test::RefusalOf(file, {"three", false, 0}), "net.pnml: there is no net \"three\"; the nets of the file are \"one\", \"two\"");
}

std::string Points(const std::vector<PnmlPoint>& pcolPoints) {
  std::string text;
  for (const PnmlPoint& point : pcolPoints) text += std::to_string(point.X) + "," + std::to_string(point.Y) + " ";
  return text;
}

TEST(PnmlReader, BendsAreThePointsBetweenTheEnds) {
  const PnmlNet net = Read(FileWith(std::string(kPlace) + kTransition + R"(
      <arc source="p" target="t"><graphics><position x="1" y="-2.5"/><position x="1e2" y="+4"/></graphics></arc>
      <arc source="p" target="t"><graphics/><arcpath x="0" y="0"/><arcpath x="5" y="6"/><arcpath x="9" y="9"/></arc>
      <arc source="p" target="t"><arcpath x="0" y="0"/><arcpath x="9" y="9"/></arc>)"));
  EXPECT_EQ(Points(net.Arcs[0].Bends), Points({{1, -2.5}, {100, 4}}));
  EXPECT_EQ(Points(net.Arcs[1].Bends), Points({{5, 6}}));
  EXPECT_EQ(Points(net.Arcs[2].Bends), "");
}

std::string NodeWithCaption(const std::string& pstrId, const char* pstrPosition, const char* pstrOffset) {
  return "<place id='" + pstrId + "'><graphics><position " + pstrPosition + "/></graphics><name><graphics><offset " + pstrOffset +
         "/></graphics></name></place>";
}

TEST(PnmlReader, CaptionOffsetsWrittenAsPlacesBecomeRelative) {
  const PnmlNet absolute =
      Read(FileWith(NodeWithCaption("a", "x='470' y='70'", "x='470' y='110'") + NodeWithCaption("b", "x='10' y='20'", "x='12' y='60'")));
  EXPECT_EQ(Points({*absolute.Nodes[0].NameOffset, *absolute.Nodes[1].NameOffset}), Points({{0, 40}, {2, 40}}));

  const PnmlNet relative =
      Read(FileWith(NodeWithCaption("a", "x='470' y='70'", "x='154' y='-34'") + NodeWithCaption("b", "x='10' y='20'", "x='12' y='60'")));
  EXPECT_EQ(Points({*relative.Nodes[0].NameOffset, *relative.Nodes[1].NameOffset}), Points({{154, -34}, {12, 60}}));
}

TEST(PnmlReader, GraphicsWithoutNumbersArePassedOver) {
  const PnmlNet net = Read(FileWith(NodeWithCaption("a", "", "")));
  EXPECT_FALSE(net.Nodes[0].Position || net.Nodes[0].NameOffset);
}

}  // namespace

}  // namespace vantrel
