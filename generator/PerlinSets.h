#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "base/IniFile.h"
#include "terrain/ReliefPicture.h"

namespace quillbrand {

/// One Perlin set: the name shown in the list and its five pictures, coarse to fine, relative to
/// the folder of the sets.
struct PerlinSet {
    std::string name;
    std::array<std::string, 5> pictures;
};

/// The table of the sets, by row, and the folder that they were found in.
struct PerlinSetTable {
    static constexpr int mostRows = 33;

    std::filesystem::path folder;
    std::vector<PerlinSet> rows;

    /// How many rows the list shows: an empty name ends it.
    int ListedRows() const;

    /// The row of that name, without regard to case and outer blanks, among the listed; or -1.
    int FindRow(const std::string& name) const;
};

/// What a set description says; a key that is missing reads as "".
PerlinSet ReadPerlinSet(const IniFile& description);

/// Reads the set descriptions (*.INI) of a folder, in the order of their file names, case apart.
/// A folder that does not exist gives no rows. Throws Fault for more than 33 descriptions or one
/// that cannot be read.
PerlinSetTable ScanPerlinSets(const std::filesystem::path& folder);

/// The five noise pictures of a set. The raw height of a number is 32768 less, and the outside is
/// the lowest height.
using NoisePictures = std::array<std::shared_ptr<const ReliefPicture>, 5>;

/// Reads them from the folder of the sets. Throws Fault, naming the file, when one cannot be read.
NoisePictures LoadNoisePictures(const std::filesystem::path& folder, const PerlinSet& set);

/// Whether there is anything at all in the folder of the sets.
bool PerlinPathExists(const std::filesystem::path& folder);

}  // namespace quillbrand
