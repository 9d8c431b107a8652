#include "shell/LandscapeArea.h"

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "base/Stdio.h"

namespace quillbrand {

namespace {

constexpr double mostSide = 100000;

Fault TooFar(const clsTerrain& terrain, double metres) {
    const double unit = terrain.ScaleT();
    return Fault("a height of " + PlainText(metres) + " m does not fit: with " +
                 PlainText(terrain.ScaleT()) + " m per point it must lie within " +
                 Format(INT16_MIN * unit, "#0") + " to " + Format(INT16_MAX * unit, "#0") +
                 " m, and no more than " + Format(INT16_MAX * unit, "#0") +
                 " m from the other end of the heights");
}

/// Metres in terrain units.
std::int64_t Units(const clsTerrain& terrain, double metres) {
    if (!(terrain.ScaleT() > 0))
        throw Fault("no height can be set while the metres per point are " +
                    PlainText(terrain.ScaleT()) + "; allowed is more than 0");
    try {
        return RoundTo16(metres / terrain.ScaleT());
    } catch (const Fault&) {
        throw TooFar(terrain, metres);
    }
}

using WriteEnd = void (clsTerrain::*)(std::int64_t);

void SetEnd(clsTerrain& terrain, WriteEnd write, const std::string& text) {
    const double metres = Val(text);
    const std::int64_t units = Units(terrain, metres);
    try {
        (terrain.*write)(units);
    } catch (const Fault&) {
        throw TooFar(terrain, metres);
    }
}

void SetScale(clsTerrain& terrain, const std::string& side) {
    if (terrain.Size() == 0)
        throw Fault("a terrain of one point has no side length");
    terrain.ScaleT(NarrowToSingle(Val(side) / terrain.Size()));
}

std::string Shown(double number, const char* pattern) {
    return ShownText([&] { return Format(number, pattern); });
}

}  // namespace

LandscapeFields FieldsOf(const clsTerrain& terrain) {
    const double scale = terrain.ScaleT();
    return {.spacing = Shown(STDIO::ClampValue(1.0, 100.0, scale), "#####.###"),
            .texts = {.side = Shown(terrain.Size() * scale, "######0"),
                      .lowest = Shown(terrain.MinTU() * scale, "#######0"),
                      .highest = Shown(terrain.MaxTU() * scale, "#######0")},
            .radius = Shown(terrain.CRAD(), "#####0")};
}

std::string LimitedRadius(const std::string& text) {
    std::string limited = text;
    STDIO::ClampTextBox(limited, 10000, 1);
    return limited;
}

std::string LimitedSide(const clsTerrain& terrain, const std::string& text) {
    const double least = terrain.Size() + 1;
    return Format(STDIO::ClampValue(least, mostSide, Val(text)), "######");
}

void SetLowest(clsTerrain& terrain, const std::string& metres) {
    SetEnd(terrain, &clsTerrain::MinTU, metres);
}

void SetHighest(clsTerrain& terrain, const std::string& metres) {
    SetEnd(terrain, &clsTerrain::MaxTU, metres);
}

void SetSide(clsTerrain& terrain, const LandscapeTexts& texts, KeepHeights keep) {
    const float scaleT = terrain.ScaleT();
    const int heightScale = terrain.HeightScale();
    const int baseHeight = terrain.BaseHeight();
    try {
        if (keep == KeepHeights::InUnits) {
            SetScale(terrain, texts.side);
        } else {
            SetScale(terrain, LimitedSide(terrain, texts.side));
            // The old upper end holds a lowest height back that comes to lie above it.
            SetLowest(terrain, texts.lowest);
            SetHighest(terrain, texts.highest);
        }
    } catch (const Fault&) {
        terrain.ScaleT(scaleT);
        terrain.HeightScale(heightScale);
        terrain.BaseHeight(baseHeight);
        throw;
    }
}

void CompletePlanet(clsTerrain& terrain) {
    terrain.CRAD(6);
    terrain.CRVM(1);
    terrain.ScaleT(5);
}

}  // namespace quillbrand
