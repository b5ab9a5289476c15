#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <set>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/database/Engines.h"
#include "database/PostgresServer.h"
#include "model/DesignerState.h"
#include "persistence/VNTRDB.h"
#include "util/Lookup.h"

namespace vantrel {

namespace {

/// The same workflow in two versions without a common name or count. Arcs have at least two segments, as a straight arc has no rows.
struct Version {
  char Letter;
  int Places, Segments;
};
constexpr Version kVersions[] = {{'A', 6, 2}, {'B', 11, 3}};

/// A chain of places with a transition between each two.
std::shared_ptr<Workflow> Build(const Version& pVersion, std::int32_t plngId) {
  const auto workflow = std::make_shared<Workflow>();
  workflow->RecId = plngId;
  const auto name = [&](const char* pstrKind, int plngNumber) { return pVersion.Letter + (pstrKind + std::to_string(plngNumber)); };
  auto place = workflow->NewPlace(name("place", 0));
  workflow->StartPlace = place;
  for (int i = 1; i < pVersion.Places; ++i) {
    const auto transition = workflow->NewTransition(name("transition", i));
    const auto next = workflow->NewPlace(name("place", i));
    for (const auto& arc : {workflow->CreateArc(place, transition, vntInArc), workflow->CreateArc(next, transition, vntOutArc)}) {
      arc->Guard(std::string(1, pVersion.Letter));
      for (int segment = 1; segment < pVersion.Segments; ++segment) arc->InsertVector(arc->Vectors()->Last());
    }
    place = next;
  }
  workflow->EndPlace(place);
  workflow->Dirty(true);
  return workflow;
}

/// In the child: saves one version over the other until it is killed. Reports that the first save is done.
[[noreturn]] void SaveForEver(const DatabaseAddress& pobjAddress, std::int32_t plngId, int plngFirst, int plngPipe) {
  VNTRDB database;
  database.Connection = OpenConnection(pobjAddress);
  for (int i = plngFirst;; ++i) {
    if (database.SaveWorkFlow(Build(kVersions[i % 2], plngId)) != 0) _exit(1);
    if (i == plngFirst && write(plngPipe, "!", 1) != 1) _exit(1);
  }
}

/// A child that is killed at some moment after its first save.
void SaveUntilKilled(const DatabaseAddress& pobjAddress, std::int32_t plngId, int plngFirst, std::chrono::microseconds pTime) {
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);
  const pid_t child = fork();
  if (child == 0) {
    try {
      SaveForEver(pobjAddress, plngId, plngFirst, ends[1]);
    } catch (...) {
      _exit(1);
    }
  }
  close(ends[1]);
  char ready = 0;
  const bool saved = read(ends[0], &ready, 1) == 1;
  close(ends[0]);
  std::this_thread::sleep_for(pTime);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(saved && WIFSIGNALED(status)) << "the saving itself failed";
}

std::int32_t RowsIn(Connection& pobjConnection, const std::string& pstrTable) {
  const auto rows = pobjConnection.NewRecordset();
  rows->Open("SELECT COUNT(*) AS Amount FROM " + pstrTable);
  return rows->Fields("Amount").Value.ToInt32();
}

template <class T>
void ExpectNamedAfter(char pstrLetter, const Collection<T>& pcolItems) {
  for (const auto& item : pcolItems) EXPECT_EQ(item->Name().front(), pstrLetter);
}

/// Checks that one version is whole and the other has no row. Returns its letter.
char ExpectOneVersion(Connection& pobjConnection, const Workflow& pobjWorkflow) {
  const char letter = pobjWorkflow.StartPlace ? pobjWorkflow.StartPlace->Name().front() : '?';
  const Version& version = kVersions[letter == 'A' ? 0 : 1];
  const int arcs = 2 * (version.Places - 1);
  EXPECT_EQ(letter, version.Letter);
  ExpectNamedAfter(letter, pobjWorkflow.Places);
  ExpectNamedAfter(letter, pobjWorkflow.Transitions);
  for (const auto& arc : pobjWorkflow.Arcs) EXPECT_EQ(arc->Guard(), std::string(1, letter));
  EXPECT_EQ(pobjWorkflow.Places.Count(), version.Places);
  EXPECT_EQ(pobjWorkflow.Transitions.Count(), version.Places - 1);
  EXPECT_EQ(pobjWorkflow.Arcs.Count(), arcs);
  EXPECT_EQ(pobjWorkflow.Vectors.Count(), arcs * version.Segments);
  EXPECT_EQ(RowsIn(pobjConnection, "Workflow"), 1);
  EXPECT_EQ(RowsIn(pobjConnection, "Place"), version.Places);
  EXPECT_EQ(RowsIn(pobjConnection, "Transition"), version.Places - 1);
  EXPECT_EQ(RowsIn(pobjConnection, "Arc"), arcs);
  EXPECT_EQ(RowsIn(pobjConnection, "Vector"), arcs * version.Segments);
  return letter;
}

char ReadBack(const DatabaseAddress& pobjAddress, std::int32_t plngId) {
  VNTRDB database;
  database.Connection = OpenConnection(pobjAddress);
  const auto workflow = database.ReadWorkflow(plngId);
  if (workflow) return ExpectOneVersion(*database.Connection, *workflow);
  ADD_FAILURE() << "the workflow is gone";
  return '?';
}

std::int32_t SaveFirst(const DatabaseAddress& pobjAddress) {
  CreateDatabase(pobjAddress);
  VNTRDB database;
  database.Connection = OpenConnection(pobjAddress);
  const auto workflow = Build(kVersions[0], 0);
  EXPECT_EQ(database.SaveWorkFlow(workflow), 0);
  return workflow->RecId;
}

int Kills() {
  const char* const wanted = std::getenv("VANTREL_KILLS");
  return wanted ? std::atoi(wanted) : 50;
}

void KillSaves(const DatabaseAddress& pobjAddress) {
  const DesignerStateScope scope;
  const std::int32_t id = SaveFirst(pobjAddress);
  std::mt19937 random(static_cast<unsigned>(getpid()));
  std::set<char> seen;
  for (int i = 0; i < Kills() && !testing::Test::HasFailure(); ++i) {
    SaveUntilKilled(pobjAddress, id, i, std::chrono::microseconds(random() % 20'000));
    if (!testing::Test::HasFatalFailure()) seen.insert(ReadBack(pobjAddress, id));
  }
  EXPECT_EQ(seen.size(), 2U) << "every kill came at the same moment";
}

TEST(KilledSave, LeavesOneVersionWholeInAFile) {
  const auto folder = std::filesystem::path(testing::TempDir()) / ("vantrel-kill-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  KillSaves(DatabaseAddress((folder / "kill.db").string()));
  std::filesystem::remove_all(folder);
}

#ifdef VANTREL_HAS_POSTGRES
TEST(KilledSave, LeavesOneVersionWholeOnAServer) {
  VANTREL_NEEDS_POSTGRES();
  const test::PostgresDatabase database;
  KillSaves(DatabaseAddress(database.Address()));
}
#endif

}  // namespace

}  // namespace vantrel
