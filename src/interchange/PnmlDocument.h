#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "interchange/PlanePoint.h"

namespace pugi {
struct xml_node_struct;
}

namespace vantrel {

class PnmlXml;

/// The section of the tool "Vantrel" in an element of a file: the handle of an XML node, valid while PnmlNet::Source lives.
using PnmlSection = pugi::xml_node_struct*;

/// In the units of the file: pixels.
using PnmlPoint = PlanePoint;

enum class PnmlKind : std::uint8_t { Place, Transition };

/// How a place on the page of a sub-process relates to the transition.
enum class PnmlBorder : std::uint8_t { None, Start, End };

struct PnmlNet;

/// A place or a transition as it is in the file.
struct PnmlNode {
  PnmlKind Kind = PnmlKind::Place;
  std::string Id;  ///< unique within its net; any text, spaces included
  std::string Name;
  bool HasName = false;
  std::optional<PnmlPoint> Position;    ///< the node's centre
  std::optional<PnmlPoint> NameOffset;  ///< of the caption, counted from Position
  std::int32_t InitialMarking = 0;      ///< tokens of a place, never negative
  PnmlBorder Border = PnmlBorder::None;
  std::unique_ptr<PnmlNet> Subnet;  ///< the sub-process of a transition, or nothing
  PnmlSection Section = nullptr;
};

/// An arc; a place is at one end and a transition at the other.
struct PnmlArc {
  std::string Id;                ///< may be empty or repeated: nothing refers to an arc
  std::string Source, Target;    ///< ids of nodes of the same net, never those of reference nodes
  std::string Weight = "1";      ///< a positive integer
  std::vector<PnmlPoint> Bends;  ///< from source to target, without the ends
  PnmlSection Section = nullptr;
};

/// One place/transition net with all its pages.
struct PnmlNet {
  std::string Id, Type, Name;
  std::vector<PnmlNode> Nodes;  ///< in the order of the file
  std::vector<PnmlArc> Arcs;    ///< in the order of the file
  /// One line for every arc that was left out because place/transition nets lack its kind; see PnmlOptions::SkipUnsupported.
  std::vector<std::string> Skipped;
  PnmlSection Section = nullptr;          ///< of a net that this system wrote
  std::vector<PnmlNet> Embedded;          ///< nets in the section of the outermost one, each under its own id
  std::shared_ptr<const PnmlXml> Source;  ///< owns the sections; for the outermost net alone
};

}  // namespace vantrel
