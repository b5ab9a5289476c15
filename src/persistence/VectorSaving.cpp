#include "persistence/ChartSaving.h"

namespace vantrel {

namespace {

SqlText InsertOf(const Vector& pobjVector) {
  SqlText sql;
  sql << " INSERT INTO Vector ( ArcId, X1, Y1, X2, Y2 )"
      << " VALUES (" << pobjVector.Arc()->RecId << ", " << pobjVector.X1() << ", " << pobjVector.Y1() << ", " << pobjVector.X2() << ", "
      << pobjVector.Y2() << ")";
  return sql;
}

}  // namespace

bool SaveVectors(DatabaseAccess& pobjAccess, Workflow& pobjWorkflow) {
  return RunStep(pobjAccess, [&] {
    pobjAccess.UseCursor(vntUseServer);
    for (const auto& arc : pobjWorkflow.Arcs) {
      SqlText sql;
      sql << "DELETE * FROM Vector WHERE ArcId = " << arc->RecId;
      pobjAccess.ExecuteSQL(sql);
    }
    for (const auto& arc : pobjWorkflow.Arcs) {
      const auto vectors = arc->Vectors();
      if (!vectors || vectors->Count() < 2) continue;
      for (const auto& vector : *vectors) pobjAccess.ExecuteSQL(InsertOf(*vector));
    }
  });
}

}  // namespace vantrel
