#pragma once

#include <cstdint>

#include <CLI/CLI.hpp>

namespace vantrel {

/// For Option::transform: accepts decimal whole numbers between the bounds and nothing else. Removes leading zeros, with which CLI11
/// would read a number as octal.
CLI::Validator WholeNumber(std::uint64_t plngLeast, std::uint64_t plngMost);

}  // namespace vantrel
