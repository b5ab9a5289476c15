#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// Writes one XML 1.0 document in UTF-8, an element a line. The caller gives valid names. Values may be any text: what XML cannot contain
/// (control characters, bytes that are not UTF-8) becomes U+FFFD, and line ends are kept.
class XmlWriter {
 public:
  XmlWriter();

  void Open(std::string_view pstrName);
  /// Of the element opened last, before anything goes into it.
  void Attribute(std::string_view pstrName, std::string_view pstrValue);
  /// An element holds either a text or elements.
  void Text(std::string_view pstrText);
  void Close();
  /// Opens and closes an element that holds nothing but a text.
  void Leaf(std::string_view pstrName, std::string_view pstrText);

  std::string Take();

 private:
  void EndTag();
  void BreakLine();
  void Escape(std::string_view pstrText);

  std::string mText;
  std::vector<std::string> mOpen;
  bool mInTag = false;    // the start tag still lacks its end
  bool mHasText = false;  // the end tag goes on the same line
};

}  // namespace vantrel
