#include "model/Nets.h"
#include "persistence/ChartColor.h"
#include "persistence/Databases.h"
#include "persistence/OddWorkflow.h"
#include "persistence/WholeSave.h"
#include "util/ErrorOf.h"

namespace vantrel::test {
namespace {

class Upgrade : public EveryEngine {
 protected:
  std::string Schema() const override { return TextOfFile(std::string(VANTREL_VERSION1_DIR) + "/" + GetParam() + ".sql"); }
  void Execute(const std::string& pstrSql) const { Database.Connection->Execute(pstrSql); }
  std::int32_t Count(const std::string& pstrFrom) const {
    const auto rows = Database.Connection->NewRecordset();
    rows->Open("SELECT COUNT(*) AS Total FROM " + pstrFrom);
    return rows->Fields("Total").Value.ToInt32();
  }
  void UpgradeNow() {
    Database.Connection = nullptr;
    Store().Upgrade();
    Database.Connection = Store().Connect();
  }
};

TEST_P(Upgrade, KeepsWhatIsStoredAndGivesNoIdAgain) {
  const auto net = OddWorkflow(3);
  SaveWhole(Database.Connection, net);
  const auto read = Database.ReadWorkflow(net->RecId);
  const auto workCase = NewCase("C");
  Database.SaveWorkcase(workCase);
  Database.SaveToken(read->CreateToken(read->Places.First(), nullptr, workCase));
  const auto lost = std::make_shared<Workflow>();
  const auto last = AddPlace(*lost);
  Database.SaveWorkFlow(lost);
  Database.DeleteWorkflow(lost->RecId);
  EXPECT_FALSE(SaveChartColor(*Database.Connection, net->RecId, 255)) << "these tables have no room for it";

  UpgradeNow();
  EXPECT_EQ(Described(*Database.ReadWorkflow(net->RecId)), Described(*net));
  EXPECT_EQ(Database.ReadCases(Database.ReadWorkflow(net->RecId)).size(), 1U);
  EXPECT_TRUE(SaveChartColor(*Database.Connection, net->RecId, 255));
  const auto next = std::make_shared<Workflow>();
  const auto place = AddPlace(*next);
  EXPECT_EQ(Database.SaveWorkFlow(next), 0);
  EXPECT_GT(place->RecId(), last->RecId());
}

TEST_P(Upgrade, PutsRightWhatNoKeyAllows) {
  const auto net = std::make_shared<Workflow>();
  const auto place = AddPlace(*net);
  const auto transition = AddTransition(*net);
  Connect(place, transition);
  Database.SaveWorkFlow(net);
  const auto workCase = NewCase("C");
  Database.SaveWorkcase(workCase);
  Database.SaveToken(net->CreateToken(place, nullptr, workCase));
  Execute("UPDATE Transition SET SubflowId = 77");
  Execute("UPDATE Arc SET TransitionId = 77");
  Execute("INSERT INTO Vector (ArcId, X1, Y1, X2, Y2) VALUES (77, 1, 1, 1, 1)");
  for (int i = 0; i < 2; ++i) {
    Execute(
        "INSERT INTO TokenProperty (PlaceId, Name, [Index], Caption, Description, Type, [Value], Attributes) VALUES (1, 'N', 1, '', '', 8, "
        "'', 0)");
    Execute("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES (1, 1, '" + std::to_string(i) + "')");
    Execute("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES (1, 77, '')");
  }
  UpgradeNow();
  EXPECT_EQ(Count("Transition WHERE SubflowId = 0"), 1);
  EXPECT_EQ(Count("Arc WHERE PlaceId = 1 AND TransitionId IS NULL"), 1);
  EXPECT_EQ(Count("Vector"), 0);
  EXPECT_EQ(Count("TokenProperty WHERE Name = 'N' OR Name = 'N (2)'"), 2);
  EXPECT_EQ(Count("PropertyValue"), 1);
  EXPECT_EQ(Count("PropertyValue WHERE [Value] = '1'"), 1);
  EXPECT_NE(ErrorOf([&] { Store().Upgrade(); }), 0) << "twice is refused";
  EXPECT_EQ(Count("Place"), 1);
}

VANTREL_ON_EVERY_ENGINE(Upgrade);

}  // namespace
}  // namespace vantrel::test
