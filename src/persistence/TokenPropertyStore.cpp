#include "persistence/TokenPropertyStore.h"

#include <string_view>
#include <unordered_map>
#include <vector>

#include "model/RowText.h"

namespace vantrel {

namespace {

// The id of a value whose row is there and could not be read back.
constexpr std::int32_t kUnknownRow = -1;

SqlText InsertOf(const PropertyRecord& pobjDefinition, std::int32_t plngPlaceId, std::int32_t plngIndex) {
  SqlText sql;
  sql << " INSERT INTO TokenProperty ( PlaceId, Name, [Index], Caption, Description, Type, [Value], Attributes )"
      << " VALUES (" << plngPlaceId << ",";
  sql << SqlQuoted{pobjDefinition.Name} << ", " << plngIndex << ", ";
  sql << SqlQuoted{pobjDefinition.Caption} << ", " << SqlQuoted{pobjDefinition.Description} << ", ";
  sql << pobjDefinition.Type << ", " << SqlQuoted{TextOrNone(pobjDefinition.Value)} << ", " << pobjDefinition.Attributes << ")";
  return sql;
}

SqlText InsertOf(const PropertyOption& pobjOption, std::int32_t plngPropertyId) {
  SqlText sql;
  sql << "INSERT INTO PropertyOptions ( PropertyId, Prompt, Value)"
      << " VALUES( " << plngPropertyId << ", " << SqlQuoted{pobjOption.Prompt} << ", " << SqlQuoted{TextOrNone(pobjOption.Value)} << ")";
  return sql;
}

void SaveOptions(DatabaseAccess& pobjAccess, const PropertyRecord& pobjDefinition, std::int32_t plngPlaceId) {
  SqlText select;
  select << "SELECT Id FROM TokenProperty WHERE PlaceId = " << plngPlaceId << " AND Name = " << SqlQuoted{pobjDefinition.Name};
  const auto rows = pobjAccess.Rows(select);
  if (rows->Eof()) return;
  const std::int32_t id = rows->Fields("Id").Value.ToInt32();
  for (const auto& option : pobjDefinition.Options) pobjAccess.ExecuteSQL(InsertOf(*option, id));
}

// The id of the value's row; 0 when it has none.
std::int32_t FindRow(DatabaseAccess& pobjAccess, std::int32_t plngPropertyId, std::int32_t plngTokenId) {
  SqlText sql;
  sql << "SELECT Id FROM PropertyValue WHERE PropertyId = " << plngPropertyId << " AND TokenId = " << plngTokenId;
  const auto rows = pobjAccess.Rows(sql);
  return rows->Eof() ? 0 : rows->Fields("Id").Value.ToInt32();
}

void UpdateValue(DatabaseAccess& pobjAccess, const PropertyRecord& pobjEntry, std::int32_t plngPropertyId, std::int32_t plngTokenId) {
  SqlText sql;
  sql << "UPDATE PropertyValue SET "
      << " PropertyId = " << plngPropertyId << ", "
      << " TokenId = " << plngTokenId << ", "
      << " [Value] = " << SqlQuoted{TextOrNone(pobjEntry.Value)} << " WHERE Id = " << pobjEntry.Id;
  pobjAccess.ExecuteSQL(sql);
}

void InsertValue(DatabaseAccess& pobjAccess, PropertyRecord& pobjEntry, std::int32_t plngPropertyId, std::int32_t plngTokenId) {
  SqlText sql;
  sql << "INSERT INTO PropertyValue (PropertyId, TokenId, [Value])"
      << " VALUES(" << plngPropertyId << ", " << plngTokenId << ", " << SqlQuoted{TextOrNone(pobjEntry.Value)} << ")";
  if (pobjAccess.ExecuteSQL(sql) != 0) return;
  pobjEntry.Id = kUnknownRow;  // stays when the row cannot be read back
  pobjEntry.RowTokenId = plngTokenId;
  pobjEntry.Id = FindRow(pobjAccess, plngPropertyId, plngTokenId);
}

void SaveValue(DatabaseAccess& pobjAccess, PropertyRecord& pobjEntry, const PropertyRecord& pobjDefinition, std::int32_t plngTokenId) {
  const bool isOfOther = pobjEntry.RowTokenId != 0 && pobjEntry.RowTokenId != plngTokenId;
  if (isOfOther || pobjEntry.Id == kUnknownRow) {
    pobjEntry.Id = FindRow(pobjAccess, pobjDefinition.Id, plngTokenId);
    pobjEntry.RowTokenId = plngTokenId;
  }
  if (pobjEntry.Id != 0) {
    UpdateValue(pobjAccess, pobjEntry, pobjDefinition.Id, plngTokenId);
  } else if (TextOrNone(pobjEntry.Value) != TextOrNone(pobjDefinition.Value)) {
    InsertValue(pobjAccess, pobjEntry, pobjDefinition.Id, plngTokenId);
  }
}

}  // namespace

std::shared_ptr<PropertyCollection> ReadTokenProperties(DatabaseAccess& pobjAccess, std::int32_t plngPlaceId) {
  SqlText sql;
  sql << "SELECT * FROM TokenProperty WHERE PlaceId = " << plngPlaceId << " ORDER BY Index";
  auto definitions = std::make_shared<PropertyCollection>();
  const auto rows = pobjAccess.Rows(sql);
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    auto record = std::make_shared<PropertyRecord>();
    record->Id = pobjRow.Fields("Id").Value.ToInt32();
    record->Name = pobjRow.Fields("Name").Value.ToText();
    record->Caption = pobjRow.Fields("Caption").Value.ToText();
    record->Attributes = pobjRow.Fields("Attributes").Value.ToInt32();
    record->Type = pobjRow.Fields("Type").Value.ToInt32();
    record->Value = pobjRow.Fields("Value").Value;
    record->Description = TextOrNone(pobjRow.Fields("Description").Value);
    const auto options = ReadPropertyOptions(pobjAccess, record->Id);
    for (const auto& option : *options) record->Options.Add(option);
    definitions->Add(std::move(record));
  });
  return definitions;
}

std::shared_ptr<Collection<PropertyOption>> ReadPropertyOptions(DatabaseAccess& pobjAccess, std::int32_t plngPropertyId) {
  SqlText sql;
  sql << "SELECT * FROM PropertyOption WHERE PropertyId = " << plngPropertyId;
  auto options = std::make_shared<Collection<PropertyOption>>();
  const auto rows = pobjAccess.Rows(sql);
  ForEachRow(*rows, [&](const Recordset& pobjRow) {
    options->Add(std::make_shared<PropertyOption>(PropertyOption{pobjRow.Fields("Prompt").Value.ToText(), pobjRow.Fields("Value").Value}));
  });
  return options;
}

void SaveTokenProperties(DatabaseAccess& pobjAccess, const Place& pobjPlace) {
  if (!pobjPlace.TokenProperties) throw Error(vntErrObjectNotSet);
  const PropertyCollection& definitions = *pobjPlace.TokenProperties;
  std::vector<SqlText> inserts;  // made before anything is deleted: a default that has no text is an Error
  for (const auto& definition : definitions) {
    inserts.push_back(InsertOf(*definition, pobjPlace.RecId(), static_cast<std::int32_t>(inserts.size()) + 1));
  }
  SqlText sql;
  sql << "DELETE * FROM TokenProperty WHERE TokenProperty.PlaceId = " << pobjPlace.RecId();
  pobjAccess.ExecuteSQL(sql);
  auto insert = inserts.begin();
  for (const auto& definition : definitions) {
    if (insert == inserts.end()) break;
    pobjAccess.ExecuteSQL(*insert++);
    SaveOptions(pobjAccess, *definition, pobjPlace.RecId());
  }
}

void SaveTokenValues(DatabaseAccess& pobjAccess, SavedMarks& pobjMarks, const Token& pobjToken) {
  const auto& definitions = pobjToken.Place->TokenProperties;
  const auto entries = pobjToken.CustomProperties();
  if (!definitions || !entries) throw Error(vntErrObjectNotSet);
  std::unordered_map<std::string_view, std::shared_ptr<PropertyRecord>> definitionOf;
  for (const auto& definition : *definitions) definitionOf.try_emplace(definition->Name, definition);
  for (const auto& entry : *entries) {
    const auto found = definitionOf.find(entry->Name);
    if (found == definitionOf.end()) throw Error(vntErrInvalidCall);
    pobjMarks.Keep(entry);
    SaveValue(pobjAccess, *entry, *found->second, pobjToken.RecId);
  }
}

}  // namespace vantrel
