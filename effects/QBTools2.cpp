#include "effects/QBTools2.h"

#include <algorithm>
#include <cassert>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/Stdio.h"

namespace quillbrand::QBTools2 {

namespace {

constexpr std::size_t mostBytes = std::size_t{mostElevatorSets} * elevatorRecordLength;

/// The name of set 0.
constexpr auto straightLine = "nothing";

/// Where record `index` (from 1) begins.
std::size_t OffsetOf(int index) {
    return static_cast<std::size_t>(index - 1) * elevatorRecordLength;
}

Bytes ReadSets(const Elevator& elevator) {
    Bytes file = ReadFile(elevator.ElevatorSetFile, mostBytes + 1);
    if (file.size() > mostBytes)
        throw Fault(elevator.ElevatorSetFile.string() +
                    " is no file of elevator sets: it has more than " + std::to_string(mostBytes) +
                    " bytes");
    return file;
}

void LoadStraightLine(ElevatorGrid& grid) {
    grid.Clear();
    for (int i = 0; i <= ElevatorMax; ++i)
        grid(ElevatorMax - i, i) = 1;
}

}  // namespace

std::string ReadElevatorSet(Elevator& elevator, std::span<const std::byte> file, int index) {
    if (index == 0) {
        LoadStraightLine(elevator.grid);
        return straightLine;
    }
    elevator.grid.Clear();
    if (index < 0 || static_cast<std::size_t>(index) * elevatorRecordLength > file.size())
        return {};
    const auto record = file.subspan(OffsetOf(index), elevatorRecordLength);
    for (int i = 0; i <= ElevatorMax; ++i) {
        const auto place = static_cast<std::size_t>(i);
        elevator.lastCurve[place] =
            std::to_integer<std::uint8_t>(record[elevatorNameLength + place]);
        elevator.grid(ElevatorMax - i, elevator.lastCurve[place]) = 1;
    }
    return {reinterpret_cast<const char*>(record.data()), elevatorNameLength};
}

std::string LoadElevatorSet(Elevator& elevator, int index) {
    return ReadElevatorSet(elevator, index == 0 ? Bytes() : ReadSets(elevator), index);
}

void WriteElevatorSet(Elevator& elevator, Bytes& file, int index, const std::string& name) {
    assert(index >= 1 && index <= mostElevatorSets);
    for (int a = 0; a <= ElevatorMax; ++a)
        for (int b = 0; b < ElevatorMax; ++b)
            if (elevator.grid(a, b) == 1)
                elevator.lastCurve[static_cast<std::size_t>(ElevatorMax - a)] =
                    static_cast<std::uint8_t>(b);

    const std::size_t offset = OffsetOf(index);
    file.resize(std::max(file.size(), offset + elevatorRecordLength));
    std::string padded = name.substr(0, elevatorNameLength);
    padded.resize(elevatorNameLength, ' ');
    const auto record = std::span(file).subspan(offset, elevatorRecordLength);
    std::ranges::copy(AsBytes(padded), record.begin());
    std::ranges::copy(std::as_bytes(std::span(elevator.lastCurve)),
                      record.begin() + elevatorNameLength);
}

void SaveElevatorSet(Elevator& elevator, int index, const std::string& name) {
    if (index == 0)
        return;
    if (index < 0 || index > mostElevatorSets)
        throw Fault("set " + std::to_string(index) +
                    " cannot be saved: sets have numbers from 1 to " +
                    std::to_string(mostElevatorSets));
    Bytes file;
    if (STDIO::FileExists(elevator.ElevatorSetFile))
        file = ReadSets(elevator);
    WriteElevatorSet(elevator, file, index, name);
    ReplaceFile(elevator.ElevatorSetFile, file);
}

ElevatorList OpenElevator(Elevator& elevator) {
    ElevatorList list;
    Bytes file;
    try {
        file = ReadSets(elevator);
        if (file.size() % elevatorRecordLength != 0)
            list.trouble = elevator.ElevatorSetFile.string() + " is cut short: it has " +
                           std::to_string(file.size()) + " bytes, but its sets take " +
                           std::to_string(elevatorRecordLength) + " each";
    } catch (const Fault& fault) {
        list.trouble = fault.what();
    }
    for (int index = 0;; ++index) {
        std::string name = ReadElevatorSet(elevator, file, index);
        if (name.empty())
            break;
        list.names.push_back(std::move(name));
    }
    if (elevator.ElevatorSetIndex >= static_cast<int>(list.names.size())) {
        if (list.trouble.empty())
            list.trouble = elevator.ElevatorSetFile.string() + " has no set " +
                           std::to_string(elevator.ElevatorSetIndex);
        elevator.ElevatorSetIndex = 0;
    }
    ReadElevatorSet(elevator, file, elevator.ElevatorSetIndex);
    elevator.grid.Arm(false);
    return list;
}

std::vector<std::string> ElevatorSetNames(const Elevator& elevator) {
    const Bytes file = ReadSets(elevator);
    std::vector<std::string> names = {straightLine};
    for (std::size_t at = 0; at + elevatorRecordLength <= file.size(); at += elevatorRecordLength)
        names.emplace_back(reinterpret_cast<const char*>(file.data() + at), elevatorNameLength);
    return names;
}

void ChooseElevatorSet(Elevator& elevator, int index) {
    const ElevatorGrid before = elevator.grid;
    if (LoadElevatorSet(elevator, index).empty()) {
        elevator.grid = before;
        throw Fault(elevator.ElevatorSetFile.string() + " has no set " + std::to_string(index));
    }
    elevator.ElevatorSetIndex = index;
}

void ResetElevator(Elevator& elevator) {
    LoadElevatorSet(elevator, 0);
}

}  // namespace quillbrand::QBTools2
