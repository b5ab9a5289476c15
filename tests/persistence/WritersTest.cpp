#include <set>

#include <sys/wait.h>
#include <unistd.h>

#include "model/Nets.h"
#include "persistence/Databases.h"
#include "persistence/OddWorkflow.h"
#include "persistence/WholeSave.h"
#include "util/ErrorOf.h"

namespace vantrel::test {
namespace {

class Writers : public EveryEngine {
 protected:
  /// Runs the work in several processes at the same time, each with its number and its own connection.
  void Together(int pProcesses, const std::function<void(int, VNTRDB&)>& pWork) {
    Database.Connection = nullptr;  // no process may inherit an open connection
    std::vector<pid_t> children;
    for (int number = 0; number < pProcesses; ++number) {
      const pid_t child = fork();
      ASSERT_GE(child, 0);
      if (child == 0) _exit(Work(number, pWork));
      children.push_back(child);
    }
    for (const pid_t child : children) {
      int status = -1;
      waitpid(child, &status, 0);
      EXPECT_EQ(status, 0);
    }
    Database.Connection = Store().Connect();
  }

  std::vector<std::int32_t> Ids(const std::string& pstrTable) {
    std::vector<std::int32_t> ids;
    const auto rows = Database.Connection->NewRecordset();
    for (rows->Open("SELECT Id FROM " + pstrTable); !rows->Eof(); rows->MoveNext()) ids.push_back(rows->Fields("Id").Value.ToInt32());
    return ids;
  }

 private:
  int Work(int pNumber, const std::function<void(int, VNTRDB&)>& pWork) const {
    try {
      const MessageRecorder messages;
      VNTRDB database;
      database.Connection = Store().Connect();
      pWork(pNumber, database);
      return static_cast<int>(messages.Texts.size());
    } catch (const Error&) {
      return 99;
    }
  }
};

TEST_P(Writers, OfNewThingsGetIdsOfTheirOwn) {
  constexpr int kProcesses = 4, kRounds = 8;
  Together(kProcesses, [](int, VNTRDB& pobjDatabase) {
    for (int i = 0; i < kRounds; ++i) {
      const auto net = std::make_shared<Workflow>();
      const auto place = AddPlace(*net);
      if (pobjDatabase.SaveWorkFlow(net) != 0) throw Error(vntErrDatabase);
      const auto workCase = NewCase("C");
      pobjDatabase.SaveWorkcase(workCase);
      pobjDatabase.SaveToken(net->CreateToken(place, nullptr, workCase));
    }
  });
  for (const char* table : {"Workflow", "Workcase", "Token", "Place"}) {
    const auto ids = Ids(table);
    EXPECT_EQ(std::set<std::int32_t>(ids.begin(), ids.end()).size(), std::size_t{kProcesses * kRounds}) << table;
  }
  std::set<std::int32_t> cases;
  const auto rows = Database.Connection->NewRecordset();
  for (rows->Open("SELECT WorkcaseId FROM Token"); !rows->Eof(); rows->MoveNext()) cases.insert(rows->Fields("WorkcaseId").Value.ToInt32());
  EXPECT_EQ(cases.size(), std::size_t{kProcesses * kRounds});
}

TEST_P(Writers, OfOneWorkflowLeaveOneVersionWhole) {
  const auto net = std::make_shared<Workflow>();
  for (int i = 0; i < 6; ++i) Connect(AddPlace(*net, "before" + std::to_string(i)), AddTransition(*net, "before"));
  Database.SaveWorkFlow(net);
  const auto id = net->RecId;
  Together(3, [&](int pNumber, VNTRDB& pobjDatabase) {
    for (int round = 0; round < 6; ++round) {
      const auto own = pobjDatabase.ReadWorkflow(id);
      const std::string version = std::to_string(pNumber) + "." + std::to_string(round);
      for (const auto& place : own->Places) place->AssignName(version + place->Key);
      for (const auto& transition : own->Transitions) transition->AssignName(version);
      pobjDatabase.SaveWorkFlow(own);
    }
  });
  const auto stored = Database.ReadWorkflow(id);
  EXPECT_EQ(stored->Arcs.Count(), 6);
  const std::string version = stored->Transitions.First()->Name();
  for (const auto& transition : stored->Transitions) EXPECT_EQ(transition->Name(), version);
  for (const auto& place : stored->Places) EXPECT_TRUE(place->Name().starts_with(version)) << place->Name();
}

TEST_P(Writers, OfAWholeUndoEverythingWhenOneThingIsRefused) {
  const auto outer = OddWorkflow(1), inner = OddWorkflow(2);
  outer->Transitions.First()->Object(inner);
  inner->Notations.First()->Caption = std::string("no\0text", 7);  // no engine takes that
  EXPECT_NE(ErrorOf([&] { SaveWhole(Database.Connection, outer); }), 0);
  EXPECT_EQ(inner->RecId, 0);
  EXPECT_EQ(outer->Transitions.First()->SubflowId, 0);
  for (const char* table : {"Workflow", "Place", "Transition", "Arc", "TokenProperty"}) EXPECT_TRUE(Ids(table).empty()) << table;
  inner->Notations.First()->Caption = "text";
  SaveWhole(Database.Connection, outer);
  EXPECT_EQ(Described(*Database.ReadWorkflow(outer->RecId)), Described(*outer));
}

// Two programs have the same workflow open. Each deletes something that the other one keeps.
TEST_P(Writers, OfWhatOthersSavedMeanwhileTheLaterOneWinsWhole) {
  const auto net = std::make_shared<Workflow>();
  for (const char* name : {"A", "B", "C"}) Connect(AddPlace(*net, name), AddTransition(*net, name))->Weight(name);
  const auto note = std::make_shared<Notation>();
  net->Notations.Add(note, "Notation1");
  SaveWhole(Database.Connection, net);
  const auto ours = Database.ReadWorkflow(net->RecId), theirs = Database.ReadWorkflow(net->RecId);

  for (const auto& [mine, gone] : {std::pair{ours, 1}, std::pair{theirs, 3}}) {
    mine->Arcs.Remove(mine->Arcs.Item(gone)->Key);
    mine->Places.Remove(mine->Places.Item(gone)->Key);
    mine->Transitions.Remove(mine->Transitions.Item(gone)->Key);
  }
  theirs->Notations.Clear();
  theirs->StartPlace = theirs->Places.First();
  theirs->Dirty(true);
  for (const auto& last : {ours, theirs, ours, ours, theirs}) {
    SaveWhole(Database.Connection, last);
    EXPECT_EQ(Described(*Database.ReadWorkflow(net->RecId)), Described(*last));
  }
  EXPECT_TRUE(Messages.Texts.empty());

  Database.DeleteWorkflow(net->RecId);
  const auto other = std::make_shared<Workflow>();
  AddPlace(*other, "of another one");
  SaveWhole(Database.Connection, other);
  EXPECT_EQ(other->RecId, net->RecId) << "the id came again";
  SaveWhole(Database.Connection, ours);
  EXPECT_NE(ours->RecId, other->RecId);
  EXPECT_EQ(Described(*Database.ReadWorkflow(ours->RecId)), Described(*ours));
  EXPECT_EQ(Database.ReadWorkflow(other->RecId)->Places.Count(), 1);
}

#ifdef VANTREL_HAS_POSTGRES
// The session ends when the save is all but done.
class Saboteur : public TestHost {
 public:
  explicit Saboteur(const PostgresDatabase& pobjDatabase) : mobjDatabase(pobjDatabase) {}
  void Dirty(vantrel::Workflow&, bool pblnDirty) override {
    if (!pblnDirty && Strikes) mobjDatabase.EndSessions();
  }
  bool Strikes = true;

 private:
  const PostgresDatabase& mobjDatabase;
};

TEST(LostSession, PutsIdsAndMarksBackAndTheNextSaveWorks) {
  VANTREL_NEEDS_POSTGRES();
  const PostgresStore store;
  MessageRecorder messages;
  Saboteur host(store.Database);
  VNTRDB database;
  database.Connection = store.Connect();
  const auto net = OddWorkflow(5);
  net->Dirty(true);
  EXPECT_NE(database.SaveWorkFlow(net), 0);
  EXPECT_EQ(net->RecId, 0);
  EXPECT_TRUE(net->Dirty());
  EXPECT_EQ(net->Places.First()->RecId(), 0);
  host.Strikes = false;
  EXPECT_EQ(database.SaveWorkFlow(net), 0);
  EXPECT_EQ(net->RecId, 1);
}
#endif

VANTREL_ON_EVERY_ENGINE(Writers);

}  // namespace
}  // namespace vantrel::test
