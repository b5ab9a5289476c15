#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "interchange/PnmlError.h"

namespace vantrel {

/// A file's element tree, with the file's name and its lines for messages about elements.
class PnmlXml {
 public:
  /// Decodes, checks and parses pstrBytes, which may go away afterwards. Throws PnmlError; see DecodeXml and CheckXml.
  PnmlXml(std::string pstrFile, std::string_view pstrBytes);

  pugi::xml_node Root() const { return mDocument.document_element(); }

  /// Throws the PnmlError for a fault of an element: pstrWhat and the position of the element's start tag.
  [[noreturn]] void Fail(const std::string& pstrWhat, const pugi::xml_node& pobjWhere) const;
  /// Throws the PnmlError for a fault of the whole file.
  [[noreturn]] void Fail(const std::string& pstrWhat) const;

 private:
  TextPosition PositionOf(std::size_t plngOffset) const;

  std::string mFile;
  std::string mText;
  bool mCountsCharacters = false;  // the file's own bytes are gone after transcoding
  pugi::xml_document mDocument;
};

/// An element's name without its namespace prefix, as files use any prefix and any namespace, or none. Valid while the tree lives.
std::string_view LocalName(const pugi::xml_node& pobjElement);

/// The first child element of that local name, or an empty node.
pugi::xml_node ChildNamed(const pugi::xml_node& pobjElement, std::string_view pstrLocalName);

/// The text of a label, without the spaces around it: that of its `text` child, of its `value` child (files older than the standard), or
/// its own. Empty when pobjLabel is empty or has no text.
std::optional<std::string> LabelText(const pugi::xml_node& pobjLabel);

}  // namespace vantrel
