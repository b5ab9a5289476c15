#pragma once

#include <cstdint>

#include <CLI/CLI.hpp>

namespace vantrel {

/// For Option::transform: lets an option take decimal whole numbers between the bounds and nothing else, and drops zeros in
/// front, behind which CLI11 takes a number for octal.
CLI::Validator WholeNumber(std::uint64_t plngLeast, std::uint64_t plngMost);

}  // namespace vantrel
