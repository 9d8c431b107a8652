#pragma once

#include <array>
#include <span>
#include <string_view>

#include "data/perlin/Workbench.h"

namespace quillbrand::perlin {

/// Pictures of a set.
constexpr int pictureCount = 5;

/// One set: what it is called and how its pictures come about.
struct PerlinSet {
    const char* file;  ///< stem of its files; the program lists the sets in the order of these
    const char* name;  ///< shown in the list; its noise follows from it
    /// Builds the heights of one picture, on any scale: they are stretched to the range below.
    const Module& (*recipe)(Workbench& make);
    double feature;  ///< pixels of a feature in picture 1; each next picture has half of it
    /// For each picture, its heights' range as a part of the whole 16-bit range.
    std::array<double, pictureCount> ranges;
};

/// All sets in the order of their files. A new set is a recipe in a file of its own in `sets/`, a
/// declaration below, a row in the table in PerlinSets.cpp and its two names in
/// data/CMakeLists.txt. The other sets stay as they are, byte for byte.
std::span<const PerlinSet> PerlinSets();

/// The set of that name or file stem; null if there is none.
const PerlinSet* FindPerlinSet(std::string_view nameOrFile);

const Module& AlpineRidges(Workbench& make);
const Module& RollingHills(Workbench& make);
const Module& ErodedBadlands(Workbench& make);
const Module& DesertDunes(Workbench& make);
const Module& TerracedCanyons(Workbench& make);
const Module& VolcanicCones(Workbench& make);
const Module& BrokenPlateaus(Workbench& make);
const Module& Islands(Workbench& make);

}  // namespace quillbrand::perlin
