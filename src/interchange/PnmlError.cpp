#include "interchange/PnmlError.h"

namespace vantrel {

namespace {

constexpr std::size_t kLongestQuote = 200;

bool IsControl(char pstrCharacter) {
  const auto code = static_cast<unsigned char>(pstrCharacter);
  return code < 0x20 || code == 0x7F;
}

std::string OneLine(std::string pstrText) {
  for (char& character : pstrText) {
    if (IsControl(character)) character = ' ';
  }
  return pstrText;
}

bool ContinuesCharacter(char pstrByte) { return (static_cast<unsigned char>(pstrByte) & 0xC0) == 0x80; }

std::string At(const TextPosition& pobjPosition) {
  return " (line " + std::to_string(pobjPosition.Line) + ", column " + std::to_string(pobjPosition.Column) + ")";
}

}  // namespace

PnmlError::PnmlError(const std::string& pstrFile, const std::string& pstrWhat)
    : Error(vntErrFileFormat, OneLine(pstrFile + ": " + pstrWhat)) {}

PnmlError::PnmlError(const std::string& pstrFile, const std::string& pstrWhat, const TextPosition& pobjPosition)
    : PnmlError(pstrFile, pstrWhat + At(pobjPosition)) {}

std::string QuotedForMessage(std::string_view pstrText) {
  if (pstrText.size() <= kLongestQuote) return '"' + OneLine(std::string(pstrText)) + '"';
  std::size_t length = kLongestQuote;
  while (length > 0 && ContinuesCharacter(pstrText[length])) --length;
  return '"' + OneLine(std::string(pstrText.substr(0, length))) + "...\"";
}

}  // namespace vantrel
