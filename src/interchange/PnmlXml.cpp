#include "interchange/PnmlXml.h"

#include <algorithm>
#include <utility>

#include "interchange/XmlCheck.h"
#include "interchange/XmlEncoding.h"
#include "interchange/XmlFault.h"

namespace vantrel {

namespace {

/// No net that other tools drew is deeper than 20. Recursive walks of the tree rely on this limit.
constexpr std::size_t kDepthLimit = 256;

std::string_view Trimmed(std::string_view pstrText) {
  constexpr std::string_view kSpaces = " \t\r\n";
  const std::size_t first = pstrText.find_first_not_of(kSpaces);
  if (first == std::string_view::npos) return {};
  return pstrText.substr(first, pstrText.find_last_not_of(kSpaces) - first + 1);
}

/// A comment within a text splits it into several nodes.
std::string OwnText(const pugi::xml_node& pobjElement) {
  std::string text;
  for (const pugi::xml_node& child : pobjElement.children()) {
    if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata) text += child.value();
  }
  return text;
}

}  // namespace

PnmlXml::PnmlXml(std::string pstrFile, std::string_view pstrBytes) : mFile(std::move(pstrFile)) {
  XmlText text;
  try {
    DecodeXml(pstrBytes, text);
    CheckXml(text.Utf8, kDepthLimit);
  } catch (const XmlFault& fault) {
    mText = std::move(text.Utf8);
    mCountsCharacters = text.Transcoded;
    throw PnmlError(mFile, fault.what(), PositionOf(fault.Offset()));
  }
  mText = std::move(text.Utf8);
  mCountsCharacters = text.Transcoded;
  const auto result = mDocument.load_buffer(mText.data(), mText.size(), pugi::parse_default, pugi::encoding_utf8);
  if (!result) {
    throw PnmlError(mFile, std::string("not XML: ") + result.description(), PositionOf(static_cast<std::size_t>(result.offset)));
  }
}

void PnmlXml::Fail(const std::string& pstrWhat, const pugi::xml_node& pobjWhere) const {
  const std::ptrdiff_t name = pobjWhere.offset_debug();
  if (name < 1) Fail(pstrWhat);
  throw PnmlError(mFile, pstrWhat, PositionOf(static_cast<std::size_t>(name) - 1));
}

void PnmlXml::Fail(const std::string& pstrWhat) const { throw PnmlError(mFile, pstrWhat); }

TextPosition PnmlXml::PositionOf(std::size_t plngOffset) const {
  const std::string_view before = std::string_view(mText).substr(0, plngOffset);
  TextPosition position;
  std::size_t lineStart = 0;
  for (std::size_t at = 0; at < before.size(); ++at) {
    const bool ends = before[at] == '\n' || (before[at] == '\r' && mText.compare(at + 1, 1, "\n") != 0);
    if (!ends) continue;
    ++position.Line;
    lineStart = at + 1;
  }
  const std::string_view line = before.substr(lineStart);
  const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; };
  const auto inside = mCountsCharacters ? std::count_if(line.begin(), line.end(), continues) : 0;
  position.Column = line.size() - static_cast<std::size_t>(inside) + 1;
  return position;
}

std::string_view LocalName(const pugi::xml_node& pobjElement) {
  const std::string_view name = pobjElement.name();
  const std::size_t colon = name.find(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

pugi::xml_node ChildNamed(const pugi::xml_node& pobjElement, std::string_view pstrLocalName) {
  return pobjElement.find_child([&](const pugi::xml_node& child) { return LocalName(child) == pstrLocalName; });
}

std::optional<std::string> LabelText(const pugi::xml_node& pobjLabel) {
  pugi::xml_node holder = ChildNamed(pobjLabel, "text");
  if (!holder) holder = ChildNamed(pobjLabel, "value");
  const std::string text = OwnText(holder ? holder : pobjLabel);
  const std::string_view trimmed = Trimmed(text);
  if (trimmed.empty()) return std::nullopt;
  return std::string(trimmed);
}

}  // namespace vantrel
