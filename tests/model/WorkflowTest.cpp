#include "model/Workflow.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Nets.h"
#include "model/TestHost.h"
#include "util/ErrorOf.h"

namespace vantrel {

namespace {

using namespace test;

TEST(Workflow, ArcIsListedAtBothEndsByItsDirection) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto transition = AddTransition(*host.Net);
  const auto in = Connect(place, transition);
  const auto out = Connect(transition, place);
  host.Net->CreateArc(place, transition, static_cast<ArcDirectionConstant>(7));
  EXPECT_EQ(in->Key + " " + in->Segments().front()->Key + " " + out->Key, "Arc1 Vector1 Arc2");
  EXPECT_EQ(transition->InArcs.Item("Arc1"), in);
  EXPECT_EQ(place->OutArcs.Item("Arc1"), in);
  EXPECT_EQ(transition->OutArcs.Item("Arc2"), out);
  EXPECT_EQ(place->InArcs.Item("Arc2"), out);
  EXPECT_EQ(place->InArcs.Count() + place->OutArcs.Count() + transition->InArcs.Count() + transition->OutArcs.Count(), 4);
  EXPECT_EQ(host.Net->Arcs.Count(), 3);
}

TEST(Workflow, RemovedArcTakesItsPathAlongAndStaysListedAtItsEnds) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto transition = AddTransition(*host.Net);
  const auto arc = Connect(place, transition);
  const auto other = Connect(transition, place);
  arc->InsertVector(host.Net->Vectors.First());
  host.Net->z_RemoveArc(arc);
  EXPECT_EQ(host.Net->Arcs.Count() + host.Net->Vectors.Count() + host.Net->Elbows.Count(), 2);
  EXPECT_EQ(host.Net->Vectors.First()->Arc().get(), other.get());
  EXPECT_EQ(host.Surface.ctlHandle.Count(), 1);
  EXPECT_TRUE(place->OutArcs.Contains("Arc1"));
}

TEST(Workflow, TellsTheControlEachTimeItIsMarked) {
  TestHost host;
  host.Net->Dirty(true);
  host.Net->Dirty(true);
  host.Net->Dirty(false);
  EXPECT_EQ(host.DirtyCalls, (std::vector<bool>{true, true, false}));
}

TEST(Workflow, ShowingItDrawsTransitionsBeforePlacesSoThatArcsFindBothEnds) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  const auto transition = AddTransition(*host.Net);
  const auto arc = Connect(place, transition);
  transition->Left(4000);
  GiveElements(*place);
  GiveElements(*transition);
  GiveElements(*arc);
  host.Net->Visible(true);
  EXPECT_EQ(arc->Segments().front()->LineControl->X2(), 3880);
  EXPECT_TRUE(transition->Visible() && arc->Visible() && host.Net->Visible());
}

TEST(Embedding, WorkflowThatContainsItsOwnAncestorIsRefused) {
  TestHost host;
  const auto outer = host.Net, middle = std::make_shared<Workflow>(), inner = std::make_shared<Workflow>();
  AddTransition(*outer)->Object(middle);
  AddTransition(*middle)->Object(inner);
  const auto transition = AddTransition(*inner);
  for (const auto& ancestor : {outer, middle, inner}) {
    EXPECT_EQ(ErrorOf([&] { transition->Object(ancestor); }), vntErrInvalidCall);
  }
  EXPECT_EQ(transition->Object(), nullptr);
}

TEST(Embedding, CloneMadeInsideItsOwnSubflowIsRefused) {
  TestHost host;
  const auto inner = std::make_shared<Workflow>();
  const auto transition = AddTransition(*host.Net);
  transition->Object(inner);
  host.Net = inner;
  EXPECT_EQ(ErrorOf([&] { transition->Clone(); }), vntErrInvalidCall);
}

TEST(Lifetime, ObjectsOutliveTheirWorkflowAndStillAnswer) {
  TestHost host;
  auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net, "Inbox");
  const auto transition = AddTransition(*net, "Check");
  const auto arc = Connect(place, transition);
  const auto segment = net->Vectors.First();
  const auto token = PutToken(*place);
  net.reset();

  EXPECT_FALSE(place->Workflow);
  place->Name("Outbox");
  EXPECT_EQ(arc->Name(), "Outbox->Check");
  place->SetProperty("Caption", "late");
  arc->Visible(true);
  arc->Selected(true);
  arc->Guard("x");
  transition->Visible(true);
  transition->Left(5);
  EXPECT_EQ(segment->GetProperties()->Item("Guard")->Value.ToText(), "x");
  EXPECT_EQ(ErrorOf([&] { arc->InsertVector(segment); }), vntErrObjectNotSet);
  EXPECT_EQ(place->Tokens().First(), token);
}

TEST(Lifetime, SegmentWithoutItsArcFailsWithAnError) {
  auto arc = std::make_shared<Arc>();
  Vector segment;
  segment.Arc(arc);
  arc.reset();
  EXPECT_EQ(ErrorOf([&] { segment.Name(); }), vntErrObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { segment.GetProperties(); }), vntErrObjectNotSet);
  segment.Dirty(true);
}

TEST(Lifetime, WorkflowLeavesNothingBehindOnTheChart) {
  TestHost host;
  const auto place = AddPlace(*host.Net);
  auto transition = AddTransition(*host.Net);
  auto arc = Connect(place, transition);
  GiveElements(*transition);
  GiveElements(*arc);
  arc->InsertVector(host.Net->Vectors.First());
  auto note = std::make_shared<Notation>();
  note->TextControl = host.NewLabel();
  host.Net->Notations.Add(note);
  PutToken(*place);
  const std::vector<std::weak_ptr<Object>> objects = {host.Net, transition, arc, note, host.Net->Vectors.First(), host.Net->Elbows.First()};
  transition.reset();
  arc.reset();
  note.reset();
  place->InArcs.Clear();
  place->OutArcs.Clear();
  host.Net.reset();
  for (const auto& object : objects) EXPECT_TRUE(object.expired());
  const auto& surface = host.Surface;
  EXPECT_EQ(surface.ctlImage.Count() + surface.ctlLabel.Count() + surface.ctlLine.Count() + surface.ctlHandle.Count(), 4);
}

}  // namespace

}  // namespace vantrel
