#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vantrel {

/// Writes one JSON text (RFC 8259) piece by piece. What is no UTF-8 becomes the replacement character U+FFFD. Putting the
/// pieces in an order that makes sense is up to the caller.
class JsonWriter {
 public:
  JsonWriter& Open(char pstrBracket);   ///< '{' or '['
  JsonWriter& Close(char pstrBracket);  ///< '}' or ']'
  JsonWriter& Key(std::string_view pstrKey);
  JsonWriter& Text(std::string_view pstrText);
  JsonWriter& Number(std::int64_t plngNumber);
  /// As the shortest decimals that give the same value again; null for what is no number or infinite.
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
