#pragma once

#include <filesystem>
#include <string>

namespace quillbrand {

/// Where the program folder may be, in the order in which the places are tried. The program folder
/// holds the settings file, the Perlin sets (`PS`), the elevator sets and `erode0.flt`.
struct ProgramFolderPlaces {
    std::filesystem::path told;        ///< named by the user, or empty
    std::filesystem::path executable;  ///< the folder of the executable
    std::filesystem::path own;         ///< the user's own; empty where the user has no home
    std::filesystem::path installed;   ///< what `own` is filled from
};

/// The places of this process. `home` is the folder that the user named; when it is empty the
/// environment variable QUILLBRAND_HOME counts.
ProgramFolderPlaces PlacesOfThisProcess(const std::string& home);

/// The folder that was told; else the executable's, if it holds `PS` and can be written to; else
/// the user's own, which is made, and gets whatever of the installed data it does not hold. Throws
/// Fault for a told folder that does not exist, and for an own one that cannot be made.
std::filesystem::path FindProgramFolder(const ProgramFolderPlaces& places);

}  // namespace quillbrand
