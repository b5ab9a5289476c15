#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"

namespace vantrel {

namespace {

struct Tally {
  std::size_t Places = 0, Transitions = 0, Arcs = 0, BentArcs = 0, Bends = 0;
  std::int64_t Tokens = 0;
  std::size_t Positions = 0, Names = 0;

  bool operator==(const Tally&) const = default;
};

void PrintTo(const Tally& pobjTally, std::ostream* pobjStream) {
  *pobjStream << pobjTally.Places << " places, " << pobjTally.Transitions << " transitions, " << pobjTally.Arcs << " arcs, "
              << pobjTally.BentArcs << " bent with " << pobjTally.Bends << " points, " << pobjTally.Tokens << " tokens, "
              << pobjTally.Positions << " positions, " << pobjTally.Names << " names";
}

Tally TallyOf(const PnmlNet& pobjNet) {
  Tally tally;
  for (const PnmlNode& node : pobjNet.Nodes) {
    ++(node.Kind == PnmlKind::Place ? tally.Places : tally.Transitions);
    tally.Tokens += node.InitialMarking;
    if (node.Position) ++tally.Positions;
    if (node.HasName) ++tally.Names;
  }
  tally.Arcs = pobjNet.Arcs.size();
  for (const PnmlArc& arc : pobjNet.Arcs) {
    if (!arc.Bends.empty()) ++tally.BentArcs;
    tally.Bends += arc.Bends.size();
  }
  return tally;
}

struct FieldCase {
  const char* File;
  Tally Expected;
};

void PrintTo(const FieldCase& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.File; }

class FieldNets : public testing::TestWithParam<FieldCase> {};

TEST_P(FieldNets, AreReadWhole) {
  const auto path = test::FieldNet(GetParam().File);
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with " << GetParam().File;
  PnmlOptions options;
  options.SkipUnsupported = true;
  EXPECT_EQ(TallyOf(PnmlReader(options).ReadFile(*path)), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(, FieldNets,
                         testing::Values(FieldCase{"02_empty_net.pnml", {0, 0, 0, 0, 0, 0, 0, 0}},
                                         FieldCase{"04_woped_example_xor_bends.pnml", {8, 7, 16, 2, 2, 1, 15, 15}},
                                         FieldCase{"05_woped_loan_triggers_resources.pnml", {16, 15, 34, 0, 0, 1, 31, 31}},
                                         FieldCase{"06_woped_subprocesses_nested.pnml", {6, 4, 10, 0, 0, 1, 10, 10}},
                                         FieldCase{"08_woped_mailbox_unbounded.pnml", {5, 4, 10, 0, 0, 2, 9, 9}},
                                         FieldCase{"13_prom64_running_example.pnml", {9, 10, 22, 1, 6, 1, 19, 19}},
                                         FieldCase{"14_prom64_a42_bends.pnml", {73, 85, 204, 19, 262, 1, 158, 158}},
                                         FieldCase{"15_prom64_roadtraffic_nographics.pnml", {29, 34, 84, 0, 0, 1, 0, 63}},
                                         FieldCase{"17_data_petri_net_guards.pnml", {17, 21, 48, 0, 0, 1, 38, 38}},
                                         FieldCase{"19_prom64_clustering_192nodes_bends.pnml", {102, 90, 240, 10, 60, 1, 192, 192}},
                                         FieldCase{"20_yasper_bom.pnml", {7, 6, 14, 0, 0, 0, 13, 13}},
                                         FieldCase{"25_perm2_760nodes_3456arcs.pnml", {168, 592, 3456, 0, 0, 18, 760, 760}},
                                         FieldCase{"27_editor_1456nodes_graphics.pnml", {896, 560, 1008, 0, 0, 2240, 1456, 1456}},
                                         FieldCase{"31_ibm_C_216nodes_wf.pnml", {104, 112, 226, 0, 0, 1, 0, 0}},
                                         FieldCase{"33_ibm_b3_small_wf.pnml", {12, 8, 22, 0, 0, 1, 0, 0}},
                                         FieldCase{"34_tapaal_184nodes_graphics_bends.pnml", {101, 83, 229, 14, 23, 1, 184, 184}},
                                         FieldCase{"37_pipe_old_value_arcpath.xml", {5, 5, 12, 1, 3, 4, 10, 10}},
                                         FieldCase{"41_ibm_B3_128nodes_sound.pnml", {80, 48, 158, 0, 0, 1, 0, 0}},
                                         FieldCase{"42_ibm_B3_119nodes_improper.pnml", {69, 50, 141, 0, 0, 1, 0, 0}},
                                         FieldCase{"D2_wf1000-3_3651nodes.pnml", {1749, 1902, 5556, 0, 0, 1, 0, 3651}}));

struct Refused {
  const char* File;
  const char* Said;
};

void PrintTo(const Refused& pobjCase, std::ostream* pobjStream) { *pobjStream << pobjCase.File; }

class RefusedFieldNets : public testing::TestWithParam<Refused> {};

TEST_P(RefusedFieldNets, SayWhatIsWrongAndWhere) {
  const auto path = test::FieldNet(GetParam().File);
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with " << GetParam().File;
  try {
    PnmlReader().ReadFile(*path);
    FAIL() << "it was read";
  } catch (const PnmlError& error) {
    EXPECT_EQ(std::string(error.what()), *path + ": " + GetParam().Said);
  }
}

INSTANTIATE_TEST_SUITE_P(
    , RefusedFieldNets,
    testing::Values(Refused{"29_sap_9mgu_512nodes_illformed_comment.pnml", "not XML: \"--\" within a comment (line 5, column 40)"},
                    Refused{"34_tapaal_184nodes_graphics_bends.pnml",
                            "the arc \"preTransfusionChecks_05_done2_to_preTransfusionChecks_05_finish1\" is of the kind "
                            "\"inhibitor\", which place/transition nets do not have (line 2626, column 13)"},
                    Refused{"36_renew_style_npn_bends.pnml",
                            "the initial marking \"D\" of the place \"120\" is not a number of tokens (line 10, column 10)"}));

TEST(FieldNet, InhibitorArcsLeftOutAreReported) {
  const auto path = test::FieldNet("34_tapaal_184nodes_graphics_bends.pnml");
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with the net";
  PnmlOptions options;
  options.SkipUnsupported = true;
  EXPECT_THAT(PnmlReader(options).ReadFile(*path).Skipped, testing::SizeIs(3));
}

TEST(FieldNet, SubprocessesAreNestedWithTheirBorders) {
  const auto path = test::FieldNet("06_woped_subprocesses_nested.pnml");
  if (!path) GTEST_SKIP() << "VANTREL_NETS names no folder with the net";
  const PnmlNet net = PnmlReader().ReadFile(*path);
  std::string seen;
  const auto walk = [&seen](const auto& self, const PnmlNet& level) -> void {
    for (const PnmlNode& node : level.Nodes) {
      if (node.Border == PnmlBorder::Start) seen += node.Id + " starts; ";
      if (node.Border == PnmlBorder::End) seen += node.Id + " ends; ";
    }
    for (const PnmlNode& node : level.Nodes) {
      if (!node.Subnet) continue;
      seen += node.Id + ": ";
      self(self, *node.Subnet);
    }
  };
  walk(walk, net);
  EXPECT_EQ(seen, "sub1: p5 ends; p3 starts; sub1_sub1: p5 ends; sub1_p2 starts; ");
}

}  // namespace

}  // namespace vantrel
