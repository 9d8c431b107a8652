#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace quillbrand {

/// Upper index of the elevator's grid in both directions.
constexpr int ElevatorMax = 256;

/// The height transfer curve as it is drawn: cell (a, b) is 1 where the curve passes. Column a is
/// the input height, growing to the right; row b is the output, 0 at the top. Cell (0, 0) is at the
/// same time the armed mark of the effect.
class ElevatorGrid {
  public:
    /// Requires: 0 <= a, b <= ElevatorMax.
    std::uint8_t& operator()(int a, int b) { return cells_[Index(a, b)]; }
    std::uint8_t operator()(int a, int b) const { return cells_[Index(a, b)]; }

    void Clear() { cells_.fill(0); }

    /// The effect runs only when it is armed.
    bool IsArmed() const { return (*this)(0, 0) != 0; }
    void Arm(bool armed) { (*this)(0, 0) = armed ? 1 : 0; }

    /// A press of the left button at picture point (x, y): the whole row is cleared and the point
    /// marked. A point outside the grid counts as the nearest one inside.
    void Press(double x, double y);

    /// The mouse at (x, y) with the left button held: the whole column is cleared and the point
    /// marked.
    void Drag(double x, double y);

    /// The first row of 0..255 that is marked in column a, or -1.
    int FirstMark(int a) const;

    bool operator==(const ElevatorGrid&) const = default;

  private:
    static constexpr int side = ElevatorMax + 1;
    static std::size_t Index(int a, int b) {
        assert(a >= 0 && a < side && b >= 0 && b < side);
        return static_cast<std::size_t>(a * side + b);
    }

    std::array<std::uint8_t, std::size_t{side} * side> cells_{};
};

/// The elevator of a session: the curve in hand, and where its sets lie.
struct Elevator {
    static constexpr auto defaultSetFile = "Elevator.dat";

    ElevatorGrid grid;
    std::filesystem::path ElevatorSetFile;
    int ElevatorSetIndex = 0;  ///< the chosen set; 0 is the built-in straight line

    /// The curve bytes of the last record read or written: byte p is the row of column 256 - p.
    /// Columns that hold no mark keep their byte when a set is saved.
    std::array<std::uint8_t, ElevatorMax + 1> lastCurve{};
};

}  // namespace quillbrand
