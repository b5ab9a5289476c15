// One editable setting of an object, as a property grid shows it.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "model/PropertyOption.h"
#include "util/Collection.h"
#include "util/Variant.h"

namespace vantrel {

/// The editors that a property grid has, the `Type` of a record.
enum PropertyType : std::int32_t {
  vntPropertyText = 0,         ///< one line; options are suggestions
  vntPropertyChoice = 1,       ///< one of the options
  vntPropertyMultiLine = 3,    ///< several lines
  vntPropertyNoteChoice = 5,   ///< one of the options, settings of notes
  vntPropertyYesNo = 7,        ///< "True" or "False"
  vntPropertyCollection = 13,  ///< a PropertyCollection
  vntPropertyColor = 17        ///< a 32-bit BGR colour
};

/// A setting with its current value. Owned by its collection; the caller of Copy owns the copy.
class PropertyRecord {
 public:
  std::int32_t Id = 0;  ///< database id of a stored token property definition or value; 0 for object settings
  std::string Name;     ///< key in its collection, case-sensitive
  std::string Caption;  ///< set only for token property definitions
  std::int32_t Type = vntPropertyText;
  Variant Value;
  Collection<PropertyOption> Options;  ///< keyed by Prompt; empty for free entry
  std::string Description;
  std::int32_t Attributes = 0;  ///< flags of a token property definition
  bool ReadOnly = false;
  /// Of a token's value that has a row: the token that the row belongs to, where that is known. Tokens may have values in common, but each
  /// has rows of its own.
  std::int32_t RowTokenId = 0;

  /// A record with the same field values and copies of the options; an object in Value is shared.
  std::shared_ptr<PropertyRecord> Copy() const;
  /// Adds a choice under its prompt. Error 457 when the prompt is there already.
  void AddOption(const std::string& pstrPrompt, const Variant& pvarValue);
};

}  // namespace vantrel
