#include "interchange/PnmlExport.h"

#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FullWorkflow.h"
#include "PnmlSamples.h"
#include "PtNetGrammar.h"
#include "SampleWorkflow.h"
#include "WorkflowText.h"
#include "interchange/PnmlImport.h"

namespace vantrel::test {
namespace {

LoadedNet Import(const std::string& pstrDocument) { return BuildWorkflow(PnmlReader().ReadBytes(pstrDocument, "file")); }

void ExpectComesBack(const Workflow& pobjWorkflow) {
  const std::string document = ToPnml(pobjWorkflow);
  const auto read = Import(document).Workflow;
  EXPECT_EQ(TextOf(*read), TextOf(pobjWorkflow));
  EXPECT_EQ(FaultOfPtNet(document), "");
}

TEST(PnmlExport, EverythingThatAWorkflowStoresComesBack) { ExpectComesBack(*FullWorkflow()); }

TEST(PnmlExport, UnsetEndsStayUnset) {
  const auto workflow = SmallWorkflow();
  workflow->StartPlace = nullptr;
  workflow->EndPlace(nullptr);
  ExpectComesBack(*workflow);
  ExpectComesBack(*std::make_shared<Workflow>());
}

class OddText : public testing::TestWithParam<std::string> {};

TEST_P(OddText, ComesBackWhereverItStands) {
  const std::string& text = GetParam();
  const auto workflow = FullWorkflow();
  for (Node* node : {static_cast<Node*>(workflow->Places.First().get()), static_cast<Node*>(workflow->Transitions.First().get())}) {
    node->AssignName(text);
    node->Caption(text);
    node->Description = node->Tag = node->HiddenTag = node->EnabledImageKey = text;
  }
  const auto arc = workflow->Arcs.First();
  arc->Guard(text);
  arc->Weight(text);
  arc->Description = arc->HiddenTag = text;
  const auto note = workflow->Notations.First();
  note->Caption = note->Font = text;
  const auto definition = Definition(text, text);
  definition->AddOption("third" + text, text);
  workflow->Places.First()->TokenProperties->Add(definition);
  workflow->Transitions.First()->Action = workflow->Transitions.First()->ObjectName = workflow->Tag = text;
  ExpectComesBack(*workflow);
}

INSTANTIATE_TEST_SUITE_P(, OddText,
                         testing::Values("", " ", "  both ends\t", "'\"quotes\"'", "a\r\nb\nc\rd\te", "'); DROP TABLE Place; --", "]]>",
                                         "&amp;", "<place id=\"x\"/>", "C:\\new\\x41", "\\", "\\\\x", "\xF0\x9F\x98\x80 \xC3\xA9",
                                         std::string("a\0b", 3), "\x01\x1F\x7F", "\xEF\xBF\xBE", "\xFF\xC3", "\xED\xA0\x80", "\xEF\xBF\xBD",
                                         "007", "0", "-3", "1", "99999999999", std::string(100000, 'x')));

class AnySingle : public testing::TestWithParam<float> {};

TEST_P(AnySingle, ComesBackAsAPositionAndOnAnArc) {
  const float twips = GetParam();
  const auto workflow = SmallWorkflow();
  const auto in = workflow->Places.First();
  in->Left(twips);
  in->Top(-twips);
  in->CaptionOffsetLeft(twips);
  in->CaptionWidth = in->TokenValue = twips;
  const auto arc = workflow->Arcs.First();
  arc->WeightWidth(twips);
  arc->Segments().front()->End(twips, 1);
  AddSegment(*arc, twips, 1, 100, twips);
  ExpectComesBack(*workflow);
}

using Singles = std::numeric_limits<float>;
INSTANTIATE_TEST_SUITE_P(, AnySingle,
                         testing::Values(0.0F, 1.0F, 215.0F, 200.1F, -0.33333334F, 1e-30F, 16777217.0F, 1.4e8F, 1.6e8F,
                                         Singles::denorm_min(), Singles::max(), Singles::lowest(), Singles::infinity()));

TEST(PnmlExport, DuplicateArcsAndTakenIdsAreKeptApart) {
  const auto workflow = SmallWorkflow();
  const auto in = workflow->Places.First();
  const auto work = workflow->Transitions.First();
  workflow->CreateArc(in, work, vntInArc)->Weight("5");
  for (Node* node : {static_cast<Node*>(in.get()), static_cast<Node*>(work.get())}) node->HiddenTag = "net";
  workflow->Places.Last()->HiddenTag = "Transition1";
  for (const auto& arc : workflow->Arcs) arc->HiddenTag = "page";
  ExpectComesBack(*workflow);
}

TEST(PnmlExport, ArcsWithoutBothEndsAreLeftOutAndNamed) {
  const auto workflow = SmallWorkflow();
  const auto stranger = std::make_shared<Place>();
  stranger->Key = "Place1";
  workflow->CreateArc(stranger, workflow->Transitions.First(), vntInArc);
  const auto loose = std::make_shared<Arc>();
  loose->Key = "Arc9";
  loose->Workflow = workflow;
  workflow->Arcs.Add(loose, loose->Key);
  workflow->Arcs.First()->ArcDirection = static_cast<ArcDirectionConstant>(0);

  EXPECT_EQ(Import(ToPnml(*workflow)).Workflow->Arcs.Count(), 1);
  EXPECT_EQ(ArcsLeftOut(*workflow).size(), 3U);
  EXPECT_THAT(ArcsLeftOut(*workflow), testing::Contains(testing::HasSubstr("\"Arc9\"")));
}

TEST(PnmlExport, MarkingIsWrittenWhereItIsGiven) {
  const auto workflow = SmallWorkflow();
  const auto out = workflow->Places.Last();
  PnmlExportOptions options;
  options.Marking = {{out, 2}, {nullptr, 4}, {workflow->Places.First(), 0}, {out, 1}};
  const std::string document = ToPnml(*workflow, options);
  const auto marking = Import(document).Marking;
  ASSERT_EQ(marking.size(), 1U);
  EXPECT_EQ(marking.front().Where->Name(), "out");
  EXPECT_EQ(marking.front().Count, 3);
  EXPECT_EQ(FaultOfPtNet(document), "");
}

TEST(PnmlExport, NameAndIdOfTheNetAreMadeToFit) {
  PnmlExportOptions options;
  options.NetId = "my net";
  options.NetName = "A <net> & more";
  const std::string document = ToPnml(*SmallWorkflow(), options);
  EXPECT_EQ(FaultOfPtNet(document), "");
  EXPECT_EQ(Import(document).Id, "net");
  EXPECT_EQ(Import(document).Name, "A <net> & more");
  options.NetName = "a\r\nb\x01\rc ";
  EXPECT_EQ(Import(ToPnml(*SmallWorkflow(), options)).Name, "a\nb\xEF\xBF\xBD\nc");
  options.NetName = " \r";
  EXPECT_EQ(Import(ToPnml(*SmallWorkflow(), options)).Name, "net");
}

TEST(PnmlExport, EmbeddedWorkflowsStaySharedAndAreWrittenOnce) {
  const auto outer = SmallWorkflow(), middle = SmallWorkflow(), inner = FullWorkflow();
  middle->Transitions.First()->Object(inner);
  outer->Transitions.First()->Object(middle);
  const auto second = outer->NewTransition("second"), third = outer->NewTransition("third");
  second->Object(inner);
  third->Object(inner);
  ExpectComesBack(*outer);
}

// Thirty levels, each embedding the next one twice: written inside each other they would be a thousand million nets.
TEST(PnmlExport, WorkflowsEmbeddedTwiceOnEveryLevelDoNotMultiply) {
  const auto outermost = SmallWorkflow();
  auto level = outermost;
  for (int depth = 0; depth < 30; ++depth) {
    const auto next = SmallWorkflow();
    level->Transitions.First()->Object(next);
    level->NewTransition("again")->Object(next);
    level = next;
  }
  ExpectComesBack(*outermost);
}

/// What of a segment's ends is put how: the chain runs (0,0) (300,0) (300,300) (600,300).
void AddPieces(Arc& pobjArc, bool pblnLinked) {
  Vector& first = *pobjArc.Segments().front();
  first.Start(0, 0);
  first.End(300, 0);
  Vector& last = AddSegment(pobjArc, 300, 300, 600, 300);
  Vector& middle = AddSegment(pobjArc, 300, 0, 300, 300);
  if (!pblnLinked) return;
  first.OutVector = &middle;
  middle.InVector = &first;
  middle.OutVector = &last;
  last.InVector = &middle;
}

TEST(PnmlExport, BendPointsFollowTheLinksOrElseTheEndsThatMeet) {
  for (const bool linked : {true, false}) {
    const auto workflow = SmallWorkflow();
    AddPieces(*workflow->Arcs.First(), linked);
    const std::string document = ToPnml(*workflow);
    const PnmlNet net = Read(document);
    ASSERT_EQ(net.Arcs.front().Bends.size(), 2U) << linked;
    EXPECT_EQ(net.Arcs.front().Bends[0].Y, 0) << linked;
    EXPECT_EQ(net.Arcs.front().Bends[1].Y, 20) << linked;
    const auto read = Import(document).Workflow;
    EXPECT_EQ(TextOf(*read), TextOf(*workflow)) << linked;
    EXPECT_EQ(read->Arcs.First()->BendPoints().size(), 2U);
  }
}

TEST(PnmlExport, SegmentsThatDoNotMeetStayInTheirOrder) {
  const auto workflow = SmallWorkflow();
  AddSegment(*workflow->Arcs.First(), 7, 7, 8, 8);
  AddSegment(*workflow->Arcs.First(), 1, 1, 2, 2);
  ExpectComesBack(*workflow);
}

// Positions that an import from another tool would replace by a layout, and bend points that it would drop.
TEST(PnmlExport, OwnFileIsNeitherLaidOutAnewNorStraightened) {
  const auto workflow = SmallWorkflow();
  for (const auto& place : workflow->Places) place->Left(0);
  workflow->Transitions.First()->Left(0);
  const auto arc = workflow->Arcs.First();
  arc->Segments().front()->End(500, 440);
  AddSegment(*arc, 500, 440, 0, 440);
  ExpectComesBack(*workflow);
}

// The rules that the other tests here rely on.
TEST(PtNetGrammar, FaultsAreSeen) {
  const std::string document = ToPnml(*SmallWorkflow());
  const std::pair<const char*, const char*> faults[] = {{"id=\"Place2\"", "id=\"Place1\""},
                                                        {"id=\"Place2\"", "id=\"2\""},
                                                        {"x=\"29.333333\"", "x=\"2e1\""},
                                                        {"source=\"Place1\"", "source=\"Transition1\""},
                                                        {"<position", "<dimension"},
                                                        {"<arc id", "<arc weight=\"1\" id"},
                                                        {"version=\"1\"", "edition=\"1\""},
                                                        {"/ptnet", "/other"},
                                                        {"source=\"Place1\"", "source=\"out\""},
                                                        {"<page", "<text>1</text><page"}};
  for (const auto& [old, replacement] : faults) {
    std::string broken = document;
    ASSERT_NE(broken.find(old), std::string::npos) << old;
    EXPECT_NE(FaultOfPtNet(broken.replace(broken.find(old), std::string(old).size(), replacement)), "") << replacement;
  }
}

}  // namespace
}  // namespace vantrel::test
