#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace vantrel {

/// Twips: 15 are one pixel at 96 dpi. y grows downwards.
struct LayoutPoint {
  float X = 0;
  float Y = 0;
};

/// Twips, with the room that the node's caption and connectors need.
struct LayoutSize {
  float Width = 0;
  float Height = 0;
};

struct LayoutEdge {
  std::int32_t From = 0;
  std::int32_t To = 0;
};

/// What a layout needs to know of a net. Nodes are numbered from 0.
struct LayoutGraph {
  std::vector<LayoutSize> Nodes;
  std::vector<LayoutEdge> Edges;      ///< loops, repeated and opposite edges are allowed
  std::optional<std::int32_t> Start;  ///< the leftmost node of its component
};

/// A drawing with its top left corner at (0, 0).
struct LayoutResult {
  std::vector<LayoutPoint> TopLeft;             ///< of each node
  std::vector<std::vector<LayoutPoint>> Bends;  ///< of each edge, from its source to its target; most have none
};

}  // namespace vantrel
