#include "interchange/XmlWriter.h"

#include <utility>

#include "interchange/XmlEncoding.h"

namespace vantrel {

namespace {

/// How to write a character that a parser would interpret or change; empty for any other.
std::string_view Reference(char pstrCharacter) {
  switch (pstrCharacter) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\t':
      return "&#9;";
    case '\n':
      return "&#10;";
    case '\r':
      return "&#13;";
    default:
      return {};
  }
}

}  // namespace

XmlWriter::XmlWriter() : mText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>") {}

void XmlWriter::Open(std::string_view pstrName) {
  EndTag();
  BreakLine();
  mText += '<';
  mText += pstrName;
  mOpen.emplace_back(pstrName);
  mInTag = true;
  mHasText = false;
}

void XmlWriter::Attribute(std::string_view pstrName, std::string_view pstrValue) {
  mText += ' ';
  mText += pstrName;
  mText += "=\"";
  Escape(pstrValue);
  mText += '"';
}

void XmlWriter::Text(std::string_view pstrText) {
  EndTag();
  Escape(pstrText);
  mHasText = true;
}

void XmlWriter::Close() {
  const std::string name = std::move(mOpen.back());
  mOpen.pop_back();
  if (std::exchange(mInTag, false)) {
    mText += "/>";
  } else {
    if (!mHasText) BreakLine();
    mText += "</" + name + '>';
  }
  mHasText = false;
}

void XmlWriter::Leaf(std::string_view pstrName, std::string_view pstrText) {
  Open(pstrName);
  Text(pstrText);
  Close();
}

std::string XmlWriter::Take() {
  mText += '\n';
  return std::exchange(mText, {});
}

void XmlWriter::EndTag() {
  if (std::exchange(mInTag, false)) mText += '>';
}

void XmlWriter::BreakLine() {
  mText += '\n';
  mText.append(2 * mOpen.size(), ' ');
}

void XmlWriter::Escape(std::string_view pstrText) {
  for (std::size_t at = 0; at < pstrText.size();) {
    const std::size_t length = XmlCharacterLength(pstrText, at);
    if (length == 0) {
      mText += "\xEF\xBF\xBD";
      ++at;
      continue;
    }
    const std::string_view reference = Reference(pstrText[at]);
    mText += reference.empty() ? pstrText.substr(at, length) : reference;
    at += length;
  }
}

}  // namespace vantrel
