#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

/// Writes one JSON text (RFC 8259) piece by piece. Bytes that are not UTF-8 become the replacement character U+FFFD. The caller puts
/// the pieces in a valid order.
class JsonWriter {
 public:
  JsonWriter& Open(char pstrBracket);   ///< '{' or '['
  JsonWriter& Close(char pstrBracket);  ///< '}' or ']'
  JsonWriter& Key(std::string_view pstrKey);
  JsonWriter& Text(std::string_view pstrText);
  JsonWriter& Number(std::int64_t plngNumber);
  /// The shortest decimals that give the same value when read; null for NaN and infinity.
  JsonWriter& Decimal(float psngNumber);
  JsonWriter& Decimal(double pdblNumber);
  JsonWriter& Boolean(bool pblnValue);
  JsonWriter& Null();

  const std::string& Written() const { return mText; }

 private:
  JsonWriter& Raw(std::string_view pstrToken);
  void Separate();
  void Quote(std::string_view pstrText);

  std::string mText;
  bool mblnNeedsComma = false;
};

}  // namespace vantrel
