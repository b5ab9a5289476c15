// The model's classes by name, and the words that their keys begin with.
#pragma once

#include <string_view>

#include "util/Collection.h"

namespace vantrel {

class Arc;
class Elbow;
class Node;
class Notation;
class Place;
class Token;
class Transition;
class Vector;
class WorkCase;
class Workflow;

template <>
struct KeyWordOf<Arc> {
  static constexpr std::string_view Value = "Arc";
};
template <>
struct KeyWordOf<Elbow> {
  static constexpr std::string_view Value = "Elbow";
};
template <>
struct KeyWordOf<Notation> {
  static constexpr std::string_view Value = "Notation";
};
template <>
struct KeyWordOf<Place> {
  static constexpr std::string_view Value = "Place";
};
template <>
struct KeyWordOf<Token> {
  static constexpr std::string_view Value = "Token";
};
template <>
struct KeyWordOf<Transition> {
  static constexpr std::string_view Value = "Transition";
};
template <>
struct KeyWordOf<Vector> {
  static constexpr std::string_view Value = "Vector";
};
template <>
struct KeyWordOf<WorkCase> {
  static constexpr std::string_view Value = "WorkCase";
};

}  // namespace vantrel
