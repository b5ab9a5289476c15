#include "model/Nets.h"
#include "persistence/Databases.h"
#include "persistence/OddWorkflow.h"
#include "persistence/WholeSave.h"
#include "persistence/WorkflowList.h"
#include "util/ErrorOf.h"

namespace vantrel::test {
namespace {

class RoundTrip : public EveryEngine {};

TEST_P(RoundTrip, KeepsEveryStoredValue) {
  for (unsigned seed = 0; seed < 40; ++seed) {
    SCOPED_TRACE(seed);
    const auto net = OddWorkflow(seed);
    SaveWhole(Database.Connection, net);
    const auto stored = Database.ReadWorkflow(net->RecId);
    ASSERT_TRUE(stored);
    EXPECT_EQ(Described(*stored), Described(*net));
    EXPECT_EQ(stored->GUID, net->GUID);
    EXPECT_TRUE(stored->Loaded);

    SaveWhole(Database.Connection, stored);  // twice is the same as once
    EXPECT_EQ(Described(*Database.ReadWorkflow(net->RecId)), Described(*net));
  }
  EXPECT_TRUE(Messages.Texts.empty());
}

TEST_P(RoundTrip, FollowsWhatWasTakenAway) {
  const auto net = OddWorkflow(3);
  SaveWhole(Database.Connection, net);
  const auto read = [&] { return Database.ReadWorkflow(net->RecId); };
  net->Arcs.Clear();
  net->Transitions.Remove(1);
  net->Notations.Clear();
  Database.SaveWorkFlow(net);
  EXPECT_EQ(Described(*read()), Described(*net)) << "without its last arc, too";
  net->Transitions.Clear();
  net->EndPlace(nullptr);
  net->StartPlace = nullptr;
  net->Dirty(true);
  net->Places.Clear();
  Database.SaveWorkFlow(net);
  EXPECT_EQ(Described(*read()), Described(*net));

  const auto id = net->RecId;
  Database.DeleteWorkflow(id);
  EXPECT_EQ(read(), nullptr);
  EXPECT_EQ(Database.ReadWorkflow(4711), nullptr);
}

TEST_P(RoundTrip, DefinitionsComeInTheirOrderAndOnlyOnce) {
  const auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net);
  for (const char* name : {"z", "a", "m"}) {
    const auto record = std::make_shared<PropertyRecord>();
    record->Name = name;
    record->Value = 1.5;
    record->AddOption("one", 1);
    record->AddOption("two", 2);
    place->TokenProperties->Add(record);
  }
  Database.SaveWorkFlow(net);
  Database.SaveTokenProperties(place);
  Database.SaveTokenProperties(place);
  const auto stored = Database.ReadTokenProperties(place->RecId());
  ASSERT_EQ(stored->Count(), 3);
  EXPECT_EQ(stored->First()->Name, "z");
  EXPECT_EQ(stored->Last()->Name, "m");
  const auto options = Database.ReadPropertyOptions(stored->Item(2)->Id);
  ASSERT_EQ(options->Count(), 2);
  EXPECT_EQ(options->Last()->Value, Variant("2"));
}

TEST_P(RoundTrip, EmbeddedWorkflowsComeAlong) {
  const auto outer = OddWorkflow(1), inner = OddWorkflow(2), innermost = OddWorkflow(4);
  inner->Transitions.First()->Object(innermost);
  outer->Transitions.First()->Object(inner);
  AddTransition(*outer, "again")->Object(inner);
  SaveWhole(Database.Connection, outer);
  EXPECT_EQ(innermost->RecId, 1) << "inner ones first, each once";
  EXPECT_EQ(inner->RecId, 2);
  EXPECT_EQ(outer->RecId, 3);

  const auto stored = Database.ReadWorkflow(outer->RecId);
  ASSERT_TRUE(stored);
  const auto embedded = std::dynamic_pointer_cast<Workflow>(stored->Transitions.Last()->Object());
  ASSERT_TRUE(embedded);
  EXPECT_EQ(Described(*embedded), Described(*inner));
  EXPECT_TRUE(embedded->Transitions.First()->Object());
  EXPECT_EQ(gobjWorkflowReader, nullptr);
  EXPECT_NE(gobjWorkflow.get(), stored.get()) << "what was read last is current";

  const auto list = ListWorkflows(*Database.Connection);
  ASSERT_EQ(list.size(), 3U);
  EXPECT_EQ(list[0].EmbeddedIn, std::vector<std::int32_t>{2});
  EXPECT_EQ(list[1].EmbeddedIn, std::vector<std::int32_t>{3});
  EXPECT_EQ(list[2].Places, outer->Places.Count());
  EXPECT_EQ(list[2].Transitions, outer->Transitions.Count());
  EXPECT_EQ(list[2].Arcs, outer->Arcs.Count());
  EXPECT_EQ(list[2].GUID, outer->GUID);
}

TEST_P(RoundTrip, RefusesAWorkflowEmbeddedInItself) {
  const auto first = OddWorkflow(1), second = OddWorkflow(2);
  Database.SaveWorkFlow(first);
  first->Transitions.First()->SubflowId = 2;
  second->Transitions.First()->SubflowId = 1;
  Database.SaveWorkFlow(second);
  Database.SaveWorkFlow(first);
  try {
    Database.ReadWorkflow(1);
    ADD_FAILURE() << "must throw";
  } catch (const Error& error) {
    EXPECT_EQ(error.Number, vntErrInvalidCall);
    EXPECT_NE(error.Description.find("1 > 2 > 1"), std::string::npos) << error.Description;
  }
  EXPECT_EQ(gobjWorkflowReader, nullptr);
  second->Transitions.First()->SubflowId = 0;
  Database.SaveWorkFlow(second);
  EXPECT_TRUE(Database.ReadWorkflow(1)) << "nothing of the failed reading is left";
}

TEST_P(RoundTrip, LeavesOutWhatAnArcLacksAndRefusesWhatElseIsMissing) {
  const auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net, "twin"), twin = AddPlace(*net, "other");
  const auto transition = AddTransition(*net);
  for (int i = 0; i < 3; ++i) Connect(place, transition);
  Database.SaveWorkFlow(net);
  Connection& connection = *Database.Connection;
  connection.Execute("UPDATE Arc SET PlaceId = NULL WHERE Id = " + std::to_string(net->Arcs.Item(1)->RecId));
  connection.Execute("UPDATE Arc SET Guard = NULL WHERE Id = " + std::to_string(net->Arcs.Item(2)->RecId));
  connection.Execute("UPDATE Place SET Name = 'twin' WHERE Id = " + std::to_string(twin->RecId()));
  connection.Execute("UPDATE Transition SET Caption = NULL, Name = 'N' WHERE Id = " + std::to_string(transition->RecId));
  connection.Execute("UPDATE Workflow SET StartPlaceName = NULL, EndPlaceName = 'twin'");
  const auto stored = Database.ReadWorkflow(net->RecId);
  ASSERT_TRUE(stored);
  EXPECT_EQ(stored->Arcs.Count(), 2);
  EXPECT_EQ(stored->Arcs.First()->Weight(), "1") << "what stood behind the missing guard was left out";
  EXPECT_EQ(stored->Places.Last()->Name(), "");
  EXPECT_EQ(Messages.Texts, std::vector<std::string>{"There is already another place on this workflow with that name."});
  EXPECT_EQ(stored->Transitions.First()->Caption(), "N");
  EXPECT_FALSE(stored->StartPlace);
  EXPECT_EQ(stored->EndPlace(), stored->Places.First());
  EXPECT_FALSE(stored->Arcs.First()->Dirty);
}

// Each level embeds the next one twice: read for each transition, the innermost would be read 16 million times.
TEST_P(RoundTrip, ReadsEachEmbeddedWorkflowOnceHoweverDeep) {
  const auto outer = std::make_shared<Workflow>();
  auto last = outer;
  for (int level = 0; level < 300; ++level) {
    const auto inner = std::make_shared<Workflow>();
    for (int i = 0; i < (level < 24 ? 2 : 1); ++i) AddTransition(*last)->Object(inner);
    last = inner;
  }
  AddPlace(*last, "innermost");
  SaveWhole(Database.Connection, outer);
  const auto embedded = [](const Workflow& pobjWorkflow, int pIndex) {
    return std::dynamic_pointer_cast<Workflow>(pobjWorkflow.Transitions.Item(pIndex)->Object());
  };
  const auto stored = Database.ReadWorkflow(outer->RecId), other = Database.ReadWorkflow(outer->RecId);
  EXPECT_EQ(embedded(*stored, 1), embedded(*stored, 2)) << "as it was saved";
  EXPECT_NE(embedded(*stored, 1), embedded(*other, 1)) << "two readings share nothing";
  auto innermost = stored;
  while (!innermost->Transitions.IsEmpty()) innermost = embedded(*innermost, innermost->Transitions.Count());
  EXPECT_EQ(innermost->Places.First()->Name(), "innermost");
  EXPECT_EQ(gobjWorkflow.get(), embedded(*other, 1) ? [&] {
    auto current = other;
    while (!current->Transitions.IsEmpty()) current = embedded(*current, current->Transitions.Count());
    return current.get();
  }() : nullptr) << "what was read last is current";
}

VANTREL_ON_EVERY_ENGINE(RoundTrip);

}  // namespace
}  // namespace vantrel::test
