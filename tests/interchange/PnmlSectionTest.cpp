// Sections of ours after other tools have edited the file.
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "PnmlSamples.h"
#include "SampleWorkflow.h"
#include "interchange/PnmlExport.h"
#include "interchange/PnmlImport.h"

namespace vantrel::test {
namespace {

std::string Replaced(std::string pstrText, const std::string& pstrOld, const std::string& pstrNew) {
  const std::size_t at = pstrText.find(pstrOld);
  EXPECT_NE(at, std::string::npos) << pstrOld << " is not in\n" << pstrText;
  return at == std::string::npos ? pstrText : pstrText.replace(at, pstrOld.size(), pstrNew);
}

std::shared_ptr<Workflow> Import(const std::string& pstrDocument) { return BuildWorkflow(Read(pstrDocument)).Workflow; }

std::string FailureOf(const std::string& pstrDocument) {
  try {
    Import(pstrDocument);
  } catch (const PnmlError& error) {
    return error.what();
  }
  return {};
}

std::shared_ptr<Workflow> Embedding() {
  const auto workflow = SmallWorkflow();
  workflow->Transitions.First()->Object(SmallWorkflow());
  workflow->Places.First()->TokenValue = 4;
  const auto record = std::make_shared<PropertyRecord>();
  record->Name = "colour";
  record->Value = 3;
  record->AddOption("red", 1);
  record->AddOption("blue", 2);
  workflow->Places.First()->TokenProperties->Add(record);
  return workflow;
}

struct Damage {
  const char* Old;
  const char* New;
  const char* Said;
};

class DamagedSection : public testing::TestWithParam<Damage> {};

TEST_P(DamagedSection, IsRefusedWithTheLine) {
  const std::string damaged = Replaced(ToPnml(*Embedding()), GetParam().Old, GetParam().New);
  EXPECT_THAT(FailureOf(damaged), testing::AllOf(testing::HasSubstr(GetParam().Said), testing::HasSubstr("(line ")));
}

INSTANTIATE_TEST_SUITE_P(
    , DamagedSection,
    testing::Values(Damage{"tokenValue=\"4\"", "tokenValue=\"four\"",
                           "the value \"four\" of tokenValue in the section of Vantrel is invalid"},
                    Damage{"valueType=\"long\" value=\"3\"", "valueType=\"long\" value=\"3000000000\"", "\"3000000000\" of value"},
                    Damage{"valueType=\"long\"", "valueType=\"tall\"", "\"tall\" of valueType"},
                    Damage{"prompt=\"blue\"", "prompt=\"red\"", "the option \"red\" is there twice"},
                    Damage{"path=\"", "path=\"1 2 x ", "of path"}, Damage{"embeds=\"net_1\"", "embeds=\"net_7\"", "\"net_7\" is not there"},
                    Damage{"<net id=\"net_1\"", "<net id=\"net\"", "a second net \"net\""},
                    Damage{"embeds=\"net_1\"", "embeds=\"net\"", "embeds a net in itself"}));

TEST(Section, NetsEmbeddedTooDeepAreRefused) {
  const auto outermost = SmallWorkflow();
  auto level = outermost;
  for (int depth = 0; depth < 300; ++depth) {
    const auto next = std::make_shared<Workflow>();
    (level == outermost ? level->Transitions.First() : level->NewTransition("t"))->Object(next);
    level = next;
  }
  EXPECT_THAT(FailureOf(ToPnml(*outermost)), testing::HasSubstr("deeper than 256"));
}

TEST(Section, WhatAnotherToolHasChangedCounts) {
  const auto workflow = SmallWorkflow();
  const auto in = workflow->Places.First();
  in->Left(1e-20F);
  in->Caption(" padded ");
  workflow->Arcs.First()->Weight("many");
  workflow->Arcs.First()->Segments().front()->End(1000, 1000);
  AddSegment(*workflow->Arcs.First(), 1000, 1000, 2000, 440);
  std::string document = ToPnml(*workflow);
  document = Replaced(document, "<position x=\"16\"", "<position x=\"116\"");
  document = Replaced(document, "<text>padded</text>", "<text>changed</text>");
  document = Replaced(document, "<position x=\"66.6", "<position x=\"76.6");
  document = Replaced(document, "</arc>", "<inscription><text>8</text></inscription></arc>");

  const auto read = Import(document);
  EXPECT_EQ(read->Places.First()->Left(), 1500);
  EXPECT_EQ(read->Places.First()->Caption(), "changed");
  EXPECT_EQ(read->Places.First()->Name(), "in");
  EXPECT_EQ(read->Arcs.First()->Weight(), "8");
  EXPECT_GT(read->Arcs.First()->Segments().front()->X2(), 1100);
}

TEST(Section, ObjectsThatAnotherToolAddedGetFreeNames) {
  const std::string added =
      "<place id=\"new\"><name><text>out</text></name><graphics><position x=\"1\" y=\"2\"/></graphics></place><place id=\"Place1\"";
  const auto read = Import(Replaced(ToPnml(*SmallWorkflow()), "<place id=\"Place1\"", added));
  std::vector<std::string> names;
  for (const auto& place : read->Places) names.push_back(place->Name());
  EXPECT_THAT(names, testing::ElementsAre("out1", "in", "out"));
  EXPECT_EQ(read->StartPlace->Name(), "in");
  EXPECT_EQ(read->Places.First()->InputPosition(), vntLeft);
}

struct Ignored {
  const char* Old;
  const char* New;
};

class PassedOver : public testing::TestWithParam<Ignored> {};

TEST_P(PassedOver, LeavesTheRestReadable) {
  const auto read = Import(Replaced(ToPnml(*Embedding()), GetParam().Old, GetParam().New));
  EXPECT_EQ(read->Places.Count(), 2);
  EXPECT_EQ(read->Arcs.Count(), 2);
}

INSTANTIATE_TEST_SUITE_P(, PassedOver,
                         testing::Values(Ignored{"tokenValue", "unknown"}, Ignored{"start=\"Place1\"", "start=\"gone\""},
                                         Ignored{"start=\"Place1\"", "start=\"Transition1\""}, Ignored{"version=\"1\"", "version=\"2\""},
                                         Ignored{"tool=\"Vantrel\"", "tool=\"another\""}, Ignored{"<settings start", "<strange start"},
                                         Ignored{"path=\"", "path=\"1 2 3 4 "}));

}  // namespace
}  // namespace vantrel::test
