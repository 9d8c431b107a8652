// The elevator sets: a set that is there has one mark a column, and survives a rewrite.

#include <algorithm>

#include "effects/QBTools2.h"
#include "fuzz/Target.h"

using namespace quillbrand;
using namespace quillbrand::QBTools2;

namespace {

int MarksIn(const ElevatorGrid& grid, int column) {
    int marks = 0;
    for (int row = 0; row <= ElevatorMax; ++row)
        marks += grid(column, row);
    return marks;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto file = std::as_bytes(std::span(data, size));
    const int sets = static_cast<int>(size / elevatorRecordLength);
    Elevator elevator;
    for (const int index : {1, 2, sets, sets + 1, mostElevatorSets}) {
        const std::string name = ReadElevatorSet(elevator, file, index);
        const bool isThere = index >= 1 && index <= sets;
        Require(index == 0 || name.size() == (isThere ? elevatorNameLength : 0), "the name");
        for (int column = 0; index > 0 && column <= ElevatorMax; ++column)
            Require(MarksIn(elevator.grid, column) == (isThere ? 1 : 0), "a mark a column");
        if (!isThere)
            continue;
        const ElevatorGrid grid = elevator.grid;
        Bytes written;
        WriteElevatorSet(elevator, written, 1, name);
        Require(ReadElevatorSet(elevator, written, 1) == name, "the name survives");
        Require(elevator.grid == grid, "the curve survives");
    }
    return 0;
}
