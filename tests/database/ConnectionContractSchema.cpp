#include <cfloat>

#include <gmock/gmock.h>

#include "database/ConnectionContract.h"

namespace vantrel::test {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_P(ConnectionContract, IdsOfDeletedRowsDoNotComeAgain) {
  const std::int32_t last = AddArc(*mobjConnection, "");
  mobjConnection->Execute("DELETE * FROM Arc");
  EXPECT_GT(AddArc(*mobjConnection, ""), last);
}

TEST_P(ConnectionContract, PathsKeepTheirOrderAndGoWithTheirArc) {
  const std::string id = std::to_string(AddArc(*mobjConnection, ""));
  for (const char* x : {"3", "-1.5", "1e-05"}) {
    mobjConnection->Execute(" INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (" + id + ", " + x + ", 0, 0, 3.4028235e+38)");
  }
  mobjConnection->Execute("INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 ) VALUES (0, 1, 1, 1, 1)");
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Vector WHERE ArcId = " + id, "X1"), ElementsAre("3", "-1.5", "1e-05"));
  EXPECT_EQ(Opened(*mobjConnection, "SELECT * FROM Vector WHERE ArcId = " + id)->Fields("Y2").Value, Variant(FLT_MAX));
  mobjConnection->Execute("DELETE * FROM Arc WHERE Id = " + id);
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM Vector", "ArcId"), ElementsAre("0"));
}

TEST_P(ConnectionContract, TokenValuesFollowDefinitionsThatAreSavedAnew) {
  const std::string names =
      "SELECT TokenProperty.Name FROM PropertyValue, TokenProperty WHERE PropertyValue.PropertyId = TokenProperty.Id ORDER BY "
      "PropertyValue.Id";
  AddDefinition(*mobjConnection, "colour", 1);
  AddDefinition(*mobjConnection, "size", 2);
  for (const std::string& id : Column(*mobjConnection, "SELECT Id FROM TokenProperty ORDER BY Index", "Id")) {
    mobjConnection->Execute("INSERT INTO PropertyValue (PropertyId, TokenId, [Value]) VALUES(" + id + ", 1, 'x')");
    mobjConnection->Execute("INSERT INTO PropertyOptions ( PropertyId, Prompt, Value) VALUES( " + id + ", 'p', 'o')");
  }
  EXPECT_EQ(Column(*mobjConnection, "SELECT * FROM PropertyOption", "Prompt").size(), 2U);

  mobjConnection->Execute("DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = 7");
  EXPECT_THAT(Column(*mobjConnection, "SELECT * FROM PropertyOption", "Prompt"), IsEmpty());
  AddDefinition(*mobjConnection, "size", 1);
  AddDefinition(*mobjConnection, "weight", 2);
  EXPECT_THAT(Column(*mobjConnection, names, "Name"), ElementsAre("size"));
  mobjConnection->Execute("DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = 7");
  AddDefinition(*mobjConnection, "size", 1);
  AddDefinition(*mobjConnection, "colour", 2);
  EXPECT_THAT(Column(*mobjConnection, names, "Name"), ElementsAre("colour", "size"));
}

}  // namespace vantrel::test
