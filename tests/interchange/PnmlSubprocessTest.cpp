#include "interchange/PnmlSubprocess.h"

#include <string>

#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

using test::FileWith;

/// A net in which `in` leads to the transition `sub` and `sub` to `out`, with a page for `sub`.
std::string WithPage(const std::string& pstrPage) {
  return FileWith(
      "<place id='in'/><place id='out'/><place id='aside'/><transition id='sub'/>"
      "<arc source='in' target='sub'/><arc source='sub' target='out'/>" +
      pstrPage);
}

std::string Border(const PnmlNet& pobjNet) {
  std::string border;
  for (const PnmlNode& node : pobjNet.Nodes) {
    if (node.Border == PnmlBorder::Start) border += "start " + node.Id + "; ";
    if (node.Border == PnmlBorder::End) border += "end " + node.Id + "; ";
  }
  return border;
}

struct BorderCase {
  const char* Inside;
  const char* Expected;
};

class SubprocessBorder : public testing::TestWithParam<BorderCase> {};

TEST_P(SubprocessBorder, IsWhereTheSharedPlacesBeginAndEnd) {
  const PnmlNet net = test::Read(WithPage("<page id='sub'><net>" + std::string(GetParam().Inside) + "</net></page>"));
  ASSERT_TRUE(net.Nodes[3].Subnet);
  EXPECT_EQ(Border(*net.Nodes[3].Subnet), GetParam().Expected);
  EXPECT_EQ(Border(net), "");
}

INSTANTIATE_TEST_SUITE_P(
    , SubprocessBorder,
    testing::Values(BorderCase{"<place id='out'/><place id='in'/><place id='mine'/><transition id='t'/>"
                               "<arc source='in' target='t'/><arc source='mine' target='t'/><arc source='t' target='out'/>",
                               "end out; start in; "},
                    BorderCase{"<place id='in'/><transition id='t'/><arc source='in' target='t'/><arc source='t' target='in'/>", ""},
                    BorderCase{"<place id='in'/><place id='out'/><place id='aside'/>", "start in; end out; "}, BorderCase{"", ""}));

TEST(Subprocess, PageMayComeBeforeItsTransition) {
  const PnmlNet net = test::Read(FileWith("<page id='t'><net><place id='p'/></net></page><transition id='t'/><place id='p'/>"));
  EXPECT_EQ(test::Outline(*net.Nodes[0].Subnet), "P p; ");
}

TEST(Subprocess, NestedAsDeepAsElementsMayBe) {
  std::string file;
  for (int depth = 0; depth < 120; ++depth) file += "<net><transition id='t'/><page id='t'>";
  file += "<net/>";
  for (int depth = 0; depth < 120; ++depth) file += "</page></net>";
  const PnmlNet net = test::Read(file);
  int depth = 0;
  for (const PnmlNet* level = &net; !level->Nodes.empty(); level = level->Nodes[0].Subnet.get()) ++depth;
  EXPECT_EQ(depth, 120);
}

struct PageFault {
  const char* Page;
  const char* Said;
};

class SubprocessFault : public testing::TestWithParam<PageFault> {};

TEST_P(SubprocessFault, IsRefused) {
  EXPECT_EQ(test::RefusalOf(WithPage("\n" + std::string(GetParam().Page))), std::string("net.pnml: ") + GetParam().Said);
}

INSTANTIATE_TEST_SUITE_P(, SubprocessFault,
                         testing::Values(PageFault{"<page id='sub2'><net/></page>",
                                                   "the page \"sub2\" holds a net but belongs to no transition (line 2, column 1)"},
                                         PageFault{"<page id='in'><net/></page>",
                                                   "the page \"in\" holds a net but belongs to no transition (line 2, column 1)"},
                                         PageFault{"<page id='sub'><net/></page><page id='sub'><net/></page>",
                                                   "a second sub-process of the transition \"sub\" (line 2, column 29)"},
                                         PageFault{"<page id='sub'><net><transition id='t'/><arc source='in' target='t'/></net></page>",
                                                   "the arc without an id has the source \"in\", which is not there (line 2, column 41)"}));

}  // namespace

}  // namespace vantrel
