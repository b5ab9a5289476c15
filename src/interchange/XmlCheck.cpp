#include "interchange/XmlCheck.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <vector>

#include "interchange/PnmlError.h"
#include "interchange/XmlEncoding.h"
#include "interchange/XmlFault.h"

namespace vantrel {

namespace {

bool IsSpace(char pstrLetter) { return pstrLetter == ' ' || pstrLetter == '\t' || pstrLetter == '\n' || pstrLetter == '\r'; }

bool StartsName(char pstrLetter) {
  const auto code = static_cast<unsigned char>(pstrLetter);
  return (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z') || code == '_' || code == ':' || code >= 0x80;
}

bool ContinuesName(char pstrLetter) {
  return StartsName(pstrLetter) || (pstrLetter >= '0' && pstrLetter <= '9') || pstrLetter == '-' || pstrLetter == '.';
}

[[noreturn]] void Refuse(const std::string& pstrWhat, std::size_t plngOffset) { throw XmlFault("not XML: " + pstrWhat, plngOffset); }

std::string Tag(std::string_view pstrStart, std::string_view pstrName) {
  return QuotedForMessage(std::string(pstrStart) + std::string(pstrName) + ">");
}

bool IsKnownEntity(std::string_view pstrName) {
  static constexpr std::array<std::string_view, 5> kNames{"amp", "lt", "gt", "quot", "apos"};
  return std::find(kNames.begin(), kNames.end(), pstrName) != kNames.end();
}

/// `pstrName` is what stands between `&` and `;`.
bool IsCharacterReference(std::string_view pstrName) {
  if (!pstrName.starts_with('#')) return false;
  const bool hexadecimal = pstrName.starts_with("#x");
  const char* first = pstrName.data() + (hexadecimal ? 2 : 1);
  const char* last = pstrName.data() + pstrName.size();
  std::uint32_t code = 0;
  const auto [end, problem] = std::from_chars(first, last, code, hexadecimal ? 16 : 10);
  return problem == std::errc() && end == last && IsXmlCharacter(code);
}

/// One walk over the text; mAt is always at the next piece to read.
class XmlWalk {
 public:
  XmlWalk(std::string_view pstrText, std::size_t plngDepthLimit) : mText(pstrText), mDepthLimit(plngDepthLimit) {}

  void Run() {
    while (mAt < mText.size()) {
      if (mText[mAt] == '<') {
        Markup();
      } else {
        Characters();
      }
    }
    if (!mOpen.empty()) Refuse("the text ends before " + Tag("</", mOpen.back()), mText.size());
    if (!mHasRoot) Refuse("there is no element in the file", 0);
  }

 private:
  bool Ahead(std::string_view pstrWhat) const { return mText.substr(mAt, pstrWhat.size()) == pstrWhat; }

  void Characters() {
    const std::size_t end = std::min(mText.find('<', mAt), mText.size());
    while (mAt < end) {
      if (mText[mAt] == '&') {
        if (mOpen.empty()) Refuse("text outside the root element", mAt);
        Reference(end);
      } else {
        if (mOpen.empty() && !IsSpace(mText[mAt])) Refuse("text outside the root element", mAt);
        ++mAt;
      }
    }
  }

  void Reference(std::size_t plngEnd) {
    const std::size_t close = mText.substr(0, plngEnd).find(';', mAt);
    if (close == std::string_view::npos) Refuse("an '&' that begins no entity", mAt);
    const std::string_view name = mText.substr(mAt + 1, close - mAt - 1);
    if (!IsKnownEntity(name) && !IsCharacterReference(name)) {
      Refuse("the unknown entity " + QuotedForMessage(mText.substr(mAt, close - mAt + 1)), mAt);
    }
    mAt = close + 1;
  }

  void Markup() {
    if (Ahead("<!--")) {
      Comment();
    } else if (Ahead("<?")) {
      SkipPast("<?", "?>", "a processing instruction");
    } else if (Ahead("</")) {
      EndTag();
    } else if (Ahead("<![CDATA[") && !mOpen.empty()) {
      SkipPast("<![CDATA[", "]]>", "a CDATA section");
    } else if (Ahead("<!DOCTYPE") && !mHasRoot) {
      Doctype();
    } else {
      StartTag();
    }
  }

  void SkipPast(std::string_view pstrOpen, std::string_view pstrClose, const char* pstrWhat) {
    const std::size_t close = mText.find(pstrClose, mAt + pstrOpen.size());
    if (close == std::string_view::npos) Refuse(std::string(pstrWhat) + " without an end", mAt);
    mAt = close + pstrClose.size();
  }

  void Comment() {
    const std::size_t dashes = mText.find("--", mAt + 4);
    if (dashes == std::string_view::npos) Refuse("a comment without an end", mAt);
    if (mText.substr(dashes, 3) != "-->") Refuse("\"--\" within a comment", dashes);
    mAt = dashes + 3;
  }

  void Doctype() {
    const std::size_t start = mAt;
    bool subset = false;
    for (mAt += 9; mAt < mText.size();) {
      const char letter = mText[mAt];
      if (Ahead("<!ENTITY")) throw XmlFault("a DOCTYPE that declares entities is refused", mAt);
      if (Ahead("<!--")) {
        Comment();
      } else if (Ahead("<?")) {
        SkipPast("<?", "?>", "a processing instruction");
      } else if (letter == '"' || letter == '\'') {
        SkipPast("\"", std::string_view(&letter, 1), "a quoted text");
      } else {
        ++mAt;
        if (letter == '[') subset = true;
        if (letter == ']') subset = false;
        if (letter == '>' && !subset) return;
      }
    }
    Refuse("a DOCTYPE without an end", start);
  }

  void EndTag() {
    const std::size_t start = mAt;
    mAt += 2;
    const std::string_view name = Name("an end tag without a name");
    if (mOpen.empty()) Refuse(Tag("</", name) + " closes nothing", start);
    if (mOpen.back() != name) Refuse(Tag("</", name) + " where " + Tag("</", mOpen.back()) + " is due", start);
    mOpen.pop_back();
    SkipSpaces();
    if (!Ahead(">")) Refuse("an end tag without '>'", start);
    ++mAt;
  }

  void StartTag() {
    const std::size_t start = mAt++;
    const std::string_view name = Name("a '<' that begins no element");
    if (mOpen.empty() && mHasRoot) Refuse("a second root element " + Tag("<", name), start);
    mHasRoot = true;
    if (mOpen.size() >= mDepthLimit) {
      throw XmlFault("elements nested deeper than " + std::to_string(mDepthLimit) + " are refused", start);
    }
    Attributes(name, start);
    if (Ahead("/>")) {
      mAt += 2;
    } else {
      mOpen.push_back(name);
      ++mAt;
    }
  }

  /// Ends at the tag's `>` or `/>`.
  void Attributes(std::string_view pstrElement, std::size_t plngStart) {
    mAttributes.clear();
    while (true) {
      const bool spaced = SkipSpaces();
      if (Ahead(">") || Ahead("/>")) break;
      if (mAt >= mText.size()) Refuse(Tag("<", pstrElement) + " has no end", plngStart);
      if (!spaced) Refuse("a letter that does not belong into " + Tag("<", pstrElement), mAt);
      mAttributes.push_back(Name("an attribute without a name"));
      AttributeValue();
    }
    std::sort(mAttributes.begin(), mAttributes.end());
    const auto twice = std::adjacent_find(mAttributes.begin(), mAttributes.end());
    if (twice != mAttributes.end()) {
      Refuse("the attribute " + QuotedForMessage(*twice) + " twice in " + Tag("<", pstrElement), plngStart);
    }
  }

  void AttributeValue() {
    SkipSpaces();
    if (!Ahead("=")) Refuse("an attribute without '='", mAt);
    ++mAt;
    SkipSpaces();
    if (!Ahead("\"") && !Ahead("'")) Refuse("an attribute's value without quotes", mAt);
    const std::size_t start = mAt;
    const std::size_t close = mText.find(mText[mAt], mAt + 1);
    if (close == std::string_view::npos) Refuse("an attribute's value without an end", start);
    for (++mAt; mAt < close;) {
      if (mText[mAt] == '<') Refuse("a '<' within an attribute's value", mAt);
      if (mText[mAt] == '&') {
        Reference(close);
      } else {
        ++mAt;
      }
    }
    ++mAt;
  }

  std::string_view Name(const char* pstrMissing) {
    if (mAt >= mText.size() || !StartsName(mText[mAt])) Refuse(pstrMissing, std::min(mAt, mText.size()));
    const std::size_t start = mAt;
    while (mAt < mText.size() && ContinuesName(mText[mAt])) ++mAt;
    return mText.substr(start, mAt - start);
  }

  bool SkipSpaces() {
    const std::size_t start = mAt;
    while (mAt < mText.size() && IsSpace(mText[mAt])) ++mAt;
    return mAt > start;
  }

  std::string_view mText;
  std::size_t mDepthLimit;
  std::size_t mAt = 0;
  bool mHasRoot = false;
  std::vector<std::string_view> mOpen;
  std::vector<std::string_view> mAttributes;
};

}  // namespace

void CheckXml(std::string_view pstrText, std::size_t plngDepthLimit) { XmlWalk(pstrText, plngDepthLimit).Run(); }

}  // namespace vantrel
