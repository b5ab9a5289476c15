#include "interchange/PnmlImport.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/DesignerState.h"

namespace vantrel::test {
namespace {

LoadedNet Import(const std::string& pstrContents, bool pblnSkip = false) {
  PnmlOptions options;
  options.SkipUnsupported = pblnSkip;
  const std::string text = "<pnml><net id=\"n\"><page id=\"g\">" + pstrContents + "</page></net></pnml>";
  return BuildWorkflow(PnmlReader(options).ReadBytes(text, "net"));
}

std::string Item(const std::string& pstrKind, const std::string& pstrId, const std::string& pstrName, const std::string& pstrAt = "") {
  std::string text = "<" + pstrKind + " id=\"" + pstrId + "\">";
  if (!pstrName.empty()) text += "<name><text>" + pstrName + "</text></name>";
  if (!pstrAt.empty()) text += "<graphics><position " + pstrAt + "/></graphics>";
  return text + "</" + pstrKind + ">";
}

std::string ArcFrom(const std::string& pstrSource, const std::string& pstrTarget, const std::string& pstrInside = "") {
  return "<arc id=\"" + pstrSource + pstrTarget + "\" source=\"" + pstrSource + "\" target=\"" + pstrTarget + "\">" + pstrInside + "</arc>";
}

std::vector<std::string> PlaceNames(const LoadedNet& pobjNet) {
  std::vector<std::string> names;
  for (const auto& place : pobjNet.Workflow->Places) names.push_back(place->Name());
  return names;
}

TEST(PnmlImport, NamesAreUniqueAndKeepToTheFirstThatHasThem) {
  const auto net = Import(Item("place", "a", "In") + Item("place", "b", "") + Item("place", "c", "In") + Item("place", "d", "In1") +
                          Item("place", "e", "") + Item("place", "f", "Place5"));

  EXPECT_THAT(PlaceNames(net), testing::ElementsAre("In", "Place2", "In2", "In1", "Place1", "Place5"));
  EXPECT_EQ(net.Workflow->Places.Item("Place3")->Caption(), "In");
  EXPECT_EQ(net.Workflow->Places.Item("Place3")->HiddenTag, "c");
}

TEST(PnmlImport, OnlyASingleSourceAndASingleSinkBecomeTheEnds) {
  const std::string chain =
      Item("place", "a", "") + Item("place", "b", "") + Item("transition", "t", "") + ArcFrom("a", "t") + ArcFrom("t", "b");

  const auto net = Import(chain).Workflow;
  EXPECT_EQ(net->StartPlace->HiddenTag, "a");
  EXPECT_EQ(net->EndPlace()->HiddenTag, "b");

  const auto twoSinks = Import(chain + Item("place", "c", "") + ArcFrom("t", "c"));
  EXPECT_TRUE(twoSinks.Workflow->StartPlace);
  EXPECT_FALSE(twoSinks.Workflow->EndPlace());
  EXPECT_EQ(twoSinks.SinkPlaces, 2);
}

TEST(PnmlImport, PixelsOfTheCentreBecomeTwipsOfTheCornerAndBendsAreChained) {
  const std::string bends =
      "<graphics><position x=\"150\" y=\"100\"/><position x=\"200\" y=\"100\"/><position x=\"250\" y=\"160\"/></graphics>";
  const auto net =
      Import(Item("place", "a", "", "x=\"100\" y=\"100\"") + Item("transition", "t", "", "x=\"300\" y=\"200\"") + ArcFrom("a", "t", bends));
  const auto place = net.Workflow->Places.First();
  EXPECT_FLOAT_EQ(place->Left(), 100 * 15 - 240);

  const auto segments = net.Workflow->Arcs.First()->Segments();
  ASSERT_EQ(segments.size(), 3U);
  EXPECT_EQ(segments[0]->OutVector, segments[1]);
  EXPECT_FLOAT_EQ(segments[0]->X2(), 200 * 15);
  EXPECT_FLOAT_EQ(segments[1]->Y2(), 160 * 15);
  EXPECT_EQ(net.Workflow->Arcs.First()->BendPoints().size(), 2U);
}

TEST(PnmlImport, OpenControlLendsNeitherElementsNorSides) {
  const DesignerStateScope scope;
  gintInputPosition = vntTop;

  const auto net = Import(Item("place", "a", ""));

  EXPECT_EQ(net.Workflow->Places.First()->InputPosition(), vntLeft);
  EXPECT_EQ(gintInputPosition, vntTop);
}

TEST(PnmlImport, ArcWrittenAsAnElementOfAnotherKindIsNotPassedOver) {
  const std::string net = Item("place", "p", "") + Item("transition", "t", "") + "<inhibitorArc id=\"i\" source=\"p\" target=\"t\"/>";

  EXPECT_THROW(Import(net), PnmlError);
  EXPECT_EQ(Import(net, true).Skipped.size(), 1U);
}

}  // namespace
}  // namespace vantrel::test
