#pragma once

#include <cmath>
#include <cstdint>

namespace quillbrand::perlin {

/// No point of the plane is further than this from the nearest point of the scatter, in cells, and
/// no scattered point beyond the nine cells around is nearer.
constexpr double scatterReach = 1.2;

/// 32 fixed random bits for a cell. The library's value noise leaves its range for some cells, so
/// the bits are stirred here.
inline std::uint32_t CellBits(int column, int row, int seed) {
    std::uint32_t bits = static_cast<std::uint32_t>(seed) * 0x9E3779B1u;
    bits = (bits ^ static_cast<std::uint32_t>(column)) * 0x85EBCA6Bu;
    bits = (bits ^ (bits >> 15) ^ static_cast<std::uint32_t>(row)) * 0xC2B2AE35u;
    bits = (bits ^ (bits >> 13)) * 0x27D4EB2Fu;
    return bits ^ (bits >> 16);
}

/// One of a plane's scattered points, one in each unit cell, as seen from a place near it.
struct Scattered {
    int column;
    int row;
    int seed;
    double dx;  ///< from the scattered point to the place, in cells
    double dy;

    double Distance2() const { return dx * dx + dy * dy; }

    /// 1 at the point, falling smoothly to 0 at `scatterReach`.
    double Weight() const {
        const double part = 1.0 - Distance2() / (scatterReach * scatterReach);
        return part > 0.0 ? part * part * part : 0.0;
    }

    /// A fixed random number of this point, 0..1; `which` (1 upwards) tells several apart.
    double Chance(int which) const { return CellBits(column, row, seed + which) / 4294967296.0; }
};

/// Calls `use` with the scattered points of the nine cells around (x, y). They keep to the middle
/// three fifths of their cells.
template <typename Use>
void ForEachNear(double x, double y, int seed, Use use) {
    const int middleColumn = static_cast<int>(std::floor(x));
    const int middleRow = static_cast<int>(std::floor(y));
    for (int row = middleRow - 1; row <= middleRow + 1; ++row) {
        for (int column = middleColumn - 1; column <= middleColumn + 1; ++column) {
            const std::uint32_t bits = CellBits(column, row, seed);
            const double atX = column + 0.2 + 0.6 * (bits & 0xFFFFu) / 65536.0;
            const double atY = row + 0.2 + 0.6 * (bits >> 16) / 65536.0;
            use(Scattered{column, row, seed, x - atX, y - atY});
        }
    }
}

}  // namespace quillbrand::perlin
