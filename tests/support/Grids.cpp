#include "tests/support/Grids.h"

#include <cmath>
#include <sstream>

namespace quillbrand {

clsTerrain GridFrom(const std::string& rows) {
    std::vector<std::vector<Height>> cells(1);
    std::istringstream words(rows);
    for (std::string word; words >> word;) {
        if (word == "/")
            cells.emplace_back();
        else
            cells.back().push_back(std::stoi(word));
    }
    clsTerrain terrain;
    terrain.Init(static_cast<std::int64_t>(cells.size()));
    for (std::size_t y = 0; y < cells.size(); ++y)
        for (std::size_t x = 0; x < cells[y].size(); ++x)
            terrain.SetPoint(static_cast<int>(x), static_cast<int>(y), cells[y][x]);
    return terrain;
}

std::string TextOf(const clsTerrain& terrain) {
    std::string text;
    for (int y = 0; y <= terrain.Size(); ++y) {
        if (y > 0)
            text += " / ";
        for (int x = 0; x <= terrain.Size(); ++x)
            text += (x > 0 ? " " : "") + std::to_string(terrain.GetPoint(x, y));
    }
    return text;
}

void FillWithChance(clsTerrain& terrain, Height low, Height high, RandomSource& chance) {
    for (int y = 0; y <= terrain.Size() + 2; ++y)
        for (int x = 0; x <= terrain.Size() + 2; ++x)
            terrain.SetPoint(x, y,
                             static_cast<Height>(std::floor(
                                 low + chance.Uniform() * (static_cast<double>(high) - low + 1))));
    terrain.Range();
}

std::vector<Height> AllCells(const clsTerrain& terrain) {
    std::vector<Height> cells;
    for (int y = 0; y <= terrain.Size() + 2; ++y)
        cells.insert(cells.end(), terrain.Row(y).begin(), terrain.Row(y).end());
    return cells;
}

}  // namespace quillbrand
