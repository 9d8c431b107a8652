#pragma once

#include <cstddef>
#include <string_view>

/// The figures of the TER file; docs/formats/ter.md tells the whole format.
namespace quillbrand::TerFormat {

using namespace std::string_view_literals;

constexpr auto magic = "TERRAGENTERRAIN "sv;
constexpr auto end = "EOF\0"sv;

/// A reader looks for chunk names in this many first bytes.
constexpr std::size_t searched = 100;

/// The samples start this far behind the place of the chunk name "ALTW".
constexpr std::size_t samplesBehindAltw = 8;

/// Intervals per side of the largest terrain that is read.
constexpr int largestSize = 2049;

constexpr std::size_t mostBytes =
    searched + 2 * std::size_t{largestSize + 1} * std::size_t{largestSize + 1} + 64;

}  // namespace quillbrand::TerFormat
