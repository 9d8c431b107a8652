#include "generator/PerlinSets.h"

#include <algorithm>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/Stdio.h"
#include "base/Text.h"

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Descriptions(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error))
        if (EqualIgnoringCase(entry.path().extension().string(), ".ini") &&
            entry.is_regular_file(error))
            found.push_back(entry.path());
    std::sort(found.begin(), found.end(), [](const fs::path& a, const fs::path& b) {
        const std::string lowA = LowerCase(a.filename().string());
        const std::string lowB = LowerCase(b.filename().string());
        return lowA != lowB ? lowA < lowB : a < b;
    });
    return found;
}

}  // namespace

int PerlinSetTable::ListedRows() const {
    const auto end = std::find_if(rows.begin(), rows.end(),
                                  [](const PerlinSet& set) { return set.name.empty(); });
    return static_cast<int>(end - rows.begin());
}

int PerlinSetTable::FindRow(const std::string& name) const {
    const std::string wanted = STDIO::TrimmedText(name);
    const auto end = rows.begin() + ListedRows();
    const auto found = std::find_if(rows.begin(), end, [&](const PerlinSet& set) {
        return EqualIgnoringCase(set.name, wanted);
    });
    return found == end ? -1 : static_cast<int>(found - rows.begin());
}

PerlinSet ReadPerlinSet(const IniFile& description) {
    PerlinSet set;
    set.name = description.Get("SET", "NAME");
    for (std::size_t k = 0; k < set.pictures.size(); ++k)
        set.pictures[k] = description.Get("PERLIN", std::to_string(101 + k).substr(1));
    return set;
}

PerlinSetTable ScanPerlinSets(const fs::path& folder) {
    PerlinSetTable table;
    table.folder = folder;
    const auto descriptions = Descriptions(folder);
    if (descriptions.size() > PerlinSetTable::mostRows)
        throw Fault("too many Perlin sets in " + folder.string() + ": " +
                    std::to_string(descriptions.size()) + ", at most " +
                    std::to_string(PerlinSetTable::mostRows));
    for (const auto& path : descriptions)
        table.rows.push_back(ReadPerlinSet(IniFile::Read(path)));
    return table;
}

NoisePictures LoadNoisePictures(const fs::path& folder, const PerlinSet& set) {
    NoisePictures pictures;
    for (std::size_t k = 0; k < pictures.size(); ++k) {
        if (set.pictures[k].empty())
            throw Fault("the Perlin set \"" + set.name + "\" names no picture 0" +
                        std::to_string(k + 1));
        pictures[k] = LoadReliefPicture(FindInFolder(folder, set.pictures[k]));
    }
    return pictures;
}

bool PerlinPathExists(const fs::path& folder) {
    std::error_code error;
    return fs::directory_iterator(folder, error) != fs::directory_iterator();
}

}  // namespace quillbrand
