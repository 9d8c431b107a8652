#pragma once

#include <string>

#include "terrain/clsTerrain.h"

/// What the tab "Global" does with the values that a TER file carries beside its heights. Texts are
/// those of its fields. A function that throws Fault leaves the terrain as it was.
namespace quillbrand {

/// Radii of planets, in kilometres.
constexpr float earthRadius = 6370;
constexpr float moonRadius = 1738;
constexpr float marsRadius = 3390;

/// The texts of the fields as they stand, all in metres.
struct LandscapeTexts {
    std::string side;
    std::string lowest;
    std::string highest;
};

/// What the fields show of a terrain; "?" for a number that is too large to show.
struct LandscapeFields {
    std::string spacing;  ///< metres from point to point, limited to 1..100
    LandscapeTexts texts;
    std::string radius;  ///< of the planet, kilometres
};

LandscapeFields FieldsOf(const clsTerrain& terrain);

/// What a new side length leaves alone.
enum class KeepHeights { InUnits, InMetres };

/// The number in `text`, limited to a planet's radius of 1 to 10000 kilometres.
std::string LimitedRadius(const std::string& text);

/// The number in `text`, limited to side lengths of Size() + 1 to 100000 metres, whole.
std::string LimitedSide(const clsTerrain& terrain, const std::string& text);

/// Writes MinTU or MaxTU, which end below and above each other whatever is asked. Throws Fault for
/// a height that 16 bits of terrain units do not hold, and where ScaleT is 0.
void SetLowest(clsTerrain& terrain, const std::string& metres);
void SetHighest(clsTerrain& terrain, const std::string& metres);

/// Gives the terrain another side length. With InUnits the heights in metres grow with it, and the
/// length is taken as it stands; with InMetres it is limited first, and lowest, then highest height
/// are written as SetLowest and SetHighest do. Throws Fault as the functions above do.
void SetSide(clsTerrain& terrain, const LandscapeTexts& texts, KeepHeights keep);

/// Radius and scale so small that the terrain becomes a whole planet.
void CompletePlanet(clsTerrain& terrain);

}  // namespace quillbrand
