#include "data/perlin/PerlinSets.h"

namespace quillbrand::perlin {

namespace {

constexpr PerlinSet shippedSets[] = {
    {"01-alpine-ridges", "Alpine ridges", AlpineRidges, 150.0, {1.0, 0.55, 0.28, 0.14, 0.07}},
    {"02-rolling-hills", "Rolling hills", RollingHills, 150.0, {1.0, 0.45, 0.2, 0.09, 0.04}},
    {"03-eroded-badlands", "Eroded badlands", ErodedBadlands, 150.0, {1.0, 0.55, 0.28, 0.14, 0.07}},
    {"04-desert-dunes", "Desert dunes", DesertDunes, 150.0, {1.0, 0.45, 0.2, 0.09, 0.045}},
    {"05-terraced-canyons",
     "Terraced canyons",
     TerracedCanyons,
     150.0,
     {1.0, 0.45, 0.2, 0.09, 0.045}},
    {"06-volcanic-cones", "Volcanic cones", VolcanicCones, 150.0, {1.0, 0.6, 0.3, 0.14, 0.06}},
    {"07-broken-plateaus", "Broken plateaus", BrokenPlateaus, 150.0, {1.0, 0.45, 0.2, 0.09, 0.045}},
    {"08-islands", "Islands", Islands, 150.0, {1.0, 0.45, 0.2, 0.09, 0.045}},
};

}  // namespace

std::span<const PerlinSet> PerlinSets() {
    return shippedSets;
}

const PerlinSet* FindPerlinSet(std::string_view nameOrFile) {
    for (const PerlinSet& set : shippedSets)
        if (nameOrFile == set.name || nameOrFile == set.file)
            return &set;
    return nullptr;
}

}  // namespace quillbrand::perlin
