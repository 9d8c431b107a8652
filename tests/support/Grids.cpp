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

int AnyOf(int low, int high, RandomSource& chance) {
    return low + static_cast<int>(chance.Uniform() * (high - low + 1));
}

void FillWithChance(clsTerrain& terrain, Height low, Height high, RandomSource& chance) {
    for (int y = 0; y <= terrain.Size() + 2; ++y)
        for (int x = 0; x <= terrain.Size() + 2; ++x)
            terrain.SetPoint(x, y,
                             static_cast<Height>(std::floor(
                                 low + chance.Uniform() * (static_cast<double>(high) - low + 1))));
    terrain.Range();
}

clsTerrain RandomGrid(int points, Height low, Height high, RandomSource& chance) {
    clsTerrain terrain;
    terrain.Init(points);
    FillWithChance(terrain, low, high, chance);
    return terrain;
}

std::vector<Height> AllCells(const clsTerrain& terrain) {
    std::vector<Height> cells;
    for (int y = 0; y <= terrain.Size() + 2; ++y)
        cells.insert(cells.end(), terrain.Row(y).begin(), terrain.Row(y).end());
    return cells;
}

bool SameGrid(const clsTerrain& one, const clsTerrain& other) {
    return AllCells(one) == AllCells(other) && one.min() == other.min() && one.max() == other.max();
}

std::string HeaderText(const clsTerrain& terrain) {
    std::ostringstream text;
    text << "XPoints " << terrain.XPoints() << " ScaleT " << terrain.ScaleT() << " CRAD "
         << terrain.CRAD() << " CRVM " << terrain.CRVM() << " HeightScale " << terrain.HeightScale()
         << " BaseHeight " << terrain.BaseHeight();
    return text.str();
}

}  // namespace quillbrand
