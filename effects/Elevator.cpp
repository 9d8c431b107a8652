#include "effects/Elevator.h"

#include <algorithm>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

int Cell(double place) {
    return static_cast<int>(std::clamp<double>(RoundHalfEven(place), 0, ElevatorMax));
}

}  // namespace

void ElevatorGrid::Press(double x, double y) {
    const int row = Cell(y);
    for (int a = 0; a <= ElevatorMax; ++a)
        (*this)(a, row) = 0;
    (*this)(Cell(x), row) = 1;
}

void ElevatorGrid::Drag(double x, double y) {
    const int column = Cell(x);
    for (int b = 0; b <= ElevatorMax; ++b)
        (*this)(column, b) = 0;
    (*this)(column, Cell(y)) = 1;
}

int ElevatorGrid::FirstMark(int a) const {
    for (int b = 0; b < ElevatorMax; ++b)
        if ((*this)(a, b) == 1)
            return b;
    return -1;
}

}  // namespace quillbrand
