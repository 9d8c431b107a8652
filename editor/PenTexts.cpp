#include "editor/PenTexts.h"

#include <algorithm>
#include <cmath>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"
#include "editor/Palette.h"

namespace quillbrand {

namespace {

constexpr auto noNumber = "?";

/// The whole `steps` of a number, as a number.
double CutTo(double steps, double number) {
    return std::floor(steps * number) / steps;
}

double MetresOf(const clsTerrain& terrain, Height raw) {
    return terrain.ScaleT() * (terrain.BaseHeight() + terrain.HeightScale() * double(raw) / 65536);
}

std::string Shown(double number, const char* pattern) {
    return std::isfinite(number) ? Format(number, pattern) : noNumber;
}

/// The cell as plain text, in metres to a hundredth.
std::string CellText(const clsTerrain& terrain, int x, int y) {
    try {
        return PlainText(CutTo(100, terrain.GetPointMeters(x, y)));
    } catch (const Fault&) {
        return noNumber;
    }
}

}  // namespace

int SwatchIndex(int height) {
    return std::clamp(height / 256, 0, PaletteMax);
}

std::string PenHeightText(const clsTerrain& terrain, const Pen& pen) {
    return Shown(CutTo(100, MetresOf(terrain, pen.Z())), "####0.00");
}

std::string SliderHeightText(const clsTerrain& terrain, const Pen& pen) {
    return Shown(CutTo(10, MetresOf(terrain, pen.height - 32768)), "####0.0");
}

std::string FineHeightText(const Pen& pen, double txtMaxTerrain, double txtMinTerrain) {
    const double metres = (txtMaxTerrain - txtMinTerrain) / 65535 * pen.fine * 1000 / 1000;
    return Shown(metres, "###0.000");
}

PickedHeight PickHeight(const clsTerrain& terrain, const Pen& pen, const MousePoint& mouse) {
    const auto cell = [last = terrain.Size() + 2](float at) {
        return RoundTo32(std::clamp<double>(at, 0, last));
    };
    const int x = cell(mouse.x);
    const int y = cell(mouse.y);
    Pen picked = pen;
    picked.height = static_cast<int>(std::clamp<std::int64_t>(terrain.GetPointH(x, y), 1, 65534));
    return {.height = picked.height,
            .lblHeight = CellText(terrain, x, y),
            .lblPickHeigh = Shown(CutTo(10, MetresOf(terrain, picked.Z())), "####0.00"),
            .swatch = HeightToPaletteIndex(terrain.GetPoint(x, y))};
}

}  // namespace quillbrand
