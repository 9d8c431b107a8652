#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "base/Files.h"
#include "effects/Elevator.h"

/// The elevator sets file: nothing but records of 277 bytes, a name of 20 and a curve of 257.
namespace quillbrand::QBTools2 {

constexpr std::size_t elevatorNameLength = 20;
constexpr std::size_t elevatorRecordLength = elevatorNameLength + ElevatorMax + 1;

/// The highest number of a set.
constexpr int mostElevatorSets = 32767;

/// Puts set `index` into the grid and returns its name: "nothing" for 0, the straight line, else
/// the 20 characters of the record, blanks included. Past the file's end the grid is left empty and
/// so is the name. Throws Fault, with the grid as it was, for a file that cannot be read.
std::string LoadElevatorSet(Elevator& elevator, int index);

/// Writes the grid as set `index` (0..mostElevatorSets) under `name`, padded with blanks or cut;
/// a file that is too short, or missing, is extended with zeros. Of several marks in a column the
/// lowest of rows 0..255 wins; set 0 cannot be written, and nothing happens then. Throws Fault,
/// with the old file untouched.
void SaveElevatorSet(Elevator& elevator, int index, const std::string& name);

/// The same from and to the bytes of a file. Writing requires: `index` lies in 1..mostElevatorSets.
std::string ReadElevatorSet(Elevator& elevator, std::span<const std::byte> file, int index);
void WriteElevatorSet(Elevator& elevator, Bytes& file, int index, const std::string& name);

/// What a window over the elevator starts with.
struct ElevatorList {
    std::vector<std::string> names;  ///< of the sets 0, 1, 2, ... that are there
    std::string trouble;             ///< what is wrong with the sets file, or nothing
};

/// Opens the elevator: lists the sets, loads that of ElevatorSetIndex and takes the armed mark
/// away. Where the sets file is missing or cut short, or has no such set any more, the list holds
/// what is there, `trouble` says so, and a set that cannot be had becomes set 0.
ElevatorList OpenElevator(Elevator& elevator);

/// The names of the sets 0, 1, 2, ... that are there, blanks included. Throws Fault for a file that
/// cannot be read.
std::vector<std::string> ElevatorSetNames(const Elevator& elevator);

/// Loads a set and makes it the chosen one (`List1`). Throws Fault for one that is not there.
void ChooseElevatorSet(Elevator& elevator, int index);

/// "Reset": the straight line; the choice stays.
void ResetElevator(Elevator& elevator);

}  // namespace quillbrand::QBTools2
