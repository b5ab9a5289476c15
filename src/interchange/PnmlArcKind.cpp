#include "interchange/PnmlArcKind.h"

#include <algorithm>
#include <string_view>

#include "interchange/PnmlXml.h"

namespace vantrel {

namespace {

std::string LowerCase(std::string pstrText) {
  std::transform(pstrText.begin(), pstrText.end(), pstrText.begin(),
                 [](char letter) { return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter; });
  return pstrText;
}

bool IsOrdinary(const std::string& pstrKind) {
  const std::string kind = LowerCase(pstrKind);
  return kind.find_first_not_of(" \t\r\n") == std::string::npos || kind == "normal" || kind == "ordinary";
}

}  // namespace

bool IsForeignArcElement(const pugi::xml_node& pobjElement) {
  const std::string name = LowerCase(std::string(LocalName(pobjElement)));
  return name != "arc" && name.ends_with("arc") && pobjElement.attribute("source") && pobjElement.attribute("target");
}

std::optional<std::string> ForeignArcKind(const pugi::xml_node& pobjArc) {
  if (IsForeignArcElement(pobjArc)) return std::string(LocalName(pobjArc));
  if (const std::string kind = pobjArc.attribute("type").value(); !IsOrdinary(kind)) return kind;
  for (const pugi::xml_node& child : pobjArc.children()) {
    const std::string_view name = LocalName(child);
    if (name != "type" && name != "arctype") continue;
    if (const std::string kind = child.attribute("value").value(); !IsOrdinary(kind)) return kind;
    if (auto kind = LabelText(child); kind && !IsOrdinary(*kind)) return kind;
  }
  return std::nullopt;
}

}  // namespace vantrel
