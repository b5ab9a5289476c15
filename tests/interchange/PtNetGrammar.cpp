#include "PtNetGrammar.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <vector>

#include "interchange/PnmlXml.h"

namespace vantrel::test {
namespace {

/// How often a child may occur. The grammar interleaves children, so they may be in any order.
struct Child {
  std::string Name;
  char Often;  // '1', '?', '*', '+'
};

using Form = bool (*)(std::string_view);

struct Attribute {
  std::string Name;
  Form Value;
};

struct Rule {
  std::vector<Child> Children;
  std::vector<Attribute> Attributes = {};  // all of them required
  Form Text = [](std::string_view text) { return text.find_first_not_of(" \t\r\n") == std::string_view::npos; };
};

bool HasOnly(std::string_view pstrText, std::string_view pstrCharacters) {
  return !pstrText.empty() && pstrText.find_first_not_of(pstrCharacters) == std::string_view::npos;
}

constexpr std::string_view kDigits = "0123456789";

bool IsAny(std::string_view /*pstrText*/) { return true; }
bool IsCount(std::string_view pstrText) { return HasOnly(pstrText, kDigits); }
bool IsWeight(std::string_view pstrText) { return IsCount(pstrText) && !HasOnly(pstrText, "0"); }
bool IsPnmlNamespace(std::string_view pstrText) { return pstrText == "http://www.pnml.org/version-2009/grammar/pnml"; }
bool IsPtNet(std::string_view pstrText) { return pstrText == "http://www.pnml.org/version-2009/grammar/ptnet"; }

/// The part of NCName that every version of XML has.
bool IsId(std::string_view pstrText) {
  const std::string letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
  return HasOnly(pstrText.substr(0, 1), letters) && HasOnly(pstrText, letters + "0123456789-.");
}

/// xsd:decimal has no exponent.
bool IsDecimal(std::string_view pstrText) {
  if (pstrText.starts_with('-') || pstrText.starts_with('+')) pstrText.remove_prefix(1);
  return HasOnly(pstrText, "0123456789.") && HasOnly(pstrText.substr(0, 1), kDigits) &&
         std::count(pstrText.begin(), pstrText.end(), '.') < 2;
}

/// By the end of the element's path; the longest that fits counts.
const std::map<std::string, Rule>& Rules() {
  static const std::vector<Attribute> kPoint{{"x", IsDecimal}, {"y", IsDecimal}};
  static const std::vector<Child> kLabel{{"text", '1'}, {"graphics", '?'}, {"toolspecific", '*'}};
  static const std::map<std::string, Rule> rules{
      {"pnml", {{{"net", '+'}}, {{"xmlns", IsPnmlNamespace}}}},
      {"net", {{{"name", '?'}, {"toolspecific", '*'}, {"page", '+'}}, {{"id", IsId}, {"type", IsPtNet}}}},
      {"page",
       {{{"name", '?'},
         {"graphics", '?'},
         {"toolspecific", '*'},
         {"page", '*'},
         {"place", '*'},
         {"transition", '*'},
         {"arc", '*'},
         {"referencePlace", '*'},
         {"referenceTransition", '*'}},
        {{"id", IsId}}}},
      {"place", {{{"name", '?'}, {"graphics", '?'}, {"toolspecific", '*'}, {"initialMarking", '?'}}, {{"id", IsId}}}},
      {"transition", {{{"name", '?'}, {"graphics", '?'}, {"toolspecific", '*'}}, {{"id", IsId}}}},
      {"arc",
       {{{"name", '?'}, {"graphics", '?'}, {"toolspecific", '*'}, {"inscription", '?'}},
        {{"id", IsId}, {"source", IsId}, {"target", IsId}}}},
      {"name", {{{"text", '?'}, {"graphics", '?'}, {"toolspecific", '*'}}}},
      {"initialMarking", {kLabel}},
      {"inscription", {kLabel}},
      {"name/text", {{}, {}, IsAny}},
      {"initialMarking/text", {{}, {}, IsCount}},
      {"inscription/text", {{}, {}, IsWeight}},
      {"name/graphics", {{{"offset", '1'}}}},
      {"place/graphics", {{{"position", '1'}}}},
      {"transition/graphics", {{{"position", '1'}}}},
      {"arc/graphics", {{{"position", '*'}}}},
      {"position", {{}, kPoint}},
      {"offset", {{}, kPoint}},
  };
  return rules;
}

class GrammarWalk {
 public:
  std::string Run(const pugi::xml_node& pobjRoot) {
    Element(pobjRoot);
    for (const auto& [source, target] : mEnds) {
      if (mFault.empty() && !(mPlaces.contains(source) && mTransitions.contains(target)) &&
          !(mTransitions.contains(source) && mPlaces.contains(target))) {
        mFault = "an arc from " + source + " to " + target;
      }
    }
    return mFault;
  }

 private:
  void Element(const pugi::xml_node& pobjElement) {
    const std::string name = pobjElement.name();
    if (!mFault.empty()) return;
    if (name == "toolspecific") {
      if (!pobjElement.attribute("tool") || !pobjElement.attribute("version")) mFault = "a part of no tool";
      return;
    }
    auto rule = Rules().find(std::string(pobjElement.parent().name()) + '/' + name);
    if (rule == Rules().end()) rule = Rules().find(name);
    if (rule == Rules().end()) {
      mFault = "the element " + name;
      return;
    }
    Attributes(pobjElement, rule->second);
    Children(pobjElement, rule->second);
    Remember(pobjElement, name);
  }

  void Attributes(const pugi::xml_node& pobjElement, const Rule& pobjRule) {
    std::size_t there = 0;
    for ([[maybe_unused]] const auto& attribute : pobjElement.attributes()) ++there;
    if (there != pobjRule.Attributes.size()) mFault = "the number of attributes of " + std::string(pobjElement.name());
    for (const Attribute& attribute : pobjRule.Attributes) {
      const std::string value = pobjElement.attribute(attribute.Name.c_str()).value();
      if (!attribute.Value(value)) mFault = attribute.Name + "=" + value;
    }
  }

  void Children(const pugi::xml_node& pobjElement, const Rule& pobjRule) {
    std::map<std::string, int> counts;
    std::string text;
    for (const pugi::xml_node& child : pobjElement.children()) {
      if (child.type() == pugi::node_element) ++counts[child.name()];
      if (child.type() == pugi::node_pcdata) text += child.value();
    }
    for (const Child& child : pobjRule.Children) {
      const auto found = counts.extract(child.Name);
      const int count = found.empty() ? 0 : found.mapped();
      if ((count == 0 && (child.Often == '1' || child.Often == '+')) || (count > 1 && (child.Often == '1' || child.Often == '?'))) {
        mFault = std::to_string(count) + " times " + child.Name + " in " + pobjElement.name();
      }
    }
    if (!counts.empty()) mFault = counts.begin()->first + " in " + pobjElement.name();
    if (!pobjRule.Text(text)) mFault = "the text " + text;
    for (const pugi::xml_node& child : pobjElement.children()) {
      if (child.type() == pugi::node_element) Element(child);
    }
  }

  void Remember(const pugi::xml_node& pobjElement, const std::string& pstrName) {
    if (const pugi::xml_attribute id = pobjElement.attribute("id"); id && !mIds.insert(id.value()).second) {
      mFault = "a second id " + std::string(id.value());
    }
    if (pstrName == "place") mPlaces.insert(pobjElement.attribute("id").value());
    if (pstrName == "transition") mTransitions.insert(pobjElement.attribute("id").value());
    if (pstrName == "arc") mEnds.emplace_back(pobjElement.attribute("source").value(), pobjElement.attribute("target").value());
  }

  std::string mFault;
  std::set<std::string> mIds, mPlaces, mTransitions;
  std::vector<std::pair<std::string, std::string>> mEnds;
};

}  // namespace

std::string FaultOfPtNet(const std::string& pstrDocument) { return GrammarWalk().Run(PnmlXml("document", pstrDocument).Root()); }

}  // namespace vantrel::test
