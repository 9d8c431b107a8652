#include "data/perlin/NoisePicture.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quillbrand::perlin {

namespace {

/// Where in the noise a picture's places begin: another for each picture of each name.
std::int64_t FirstPlace(const PerlinSet& set, int number) {
    std::uint32_t hash = 2166136261u;
    for (const char* letter = set.name; *letter != '\0'; ++letter)
        hash = (hash ^ static_cast<unsigned char>(*letter)) * 16777619u;
    return hash % 100000u * 1000LL + number * 100LL;
}

std::vector<double> Heights(const Module& recipe, int side) {
    std::vector<double> heights;
    heights.reserve(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    for (int y = 0; y < side; ++y)
        for (int x = 0; x < side; ++x)
            heights.push_back(recipe.GetValue(x, y, 0.0));
    return heights;
}

}  // namespace

LevelPicture MakeNoisePicture(const PerlinSet& set, int number, int side) {
    Workbench make(FirstPlace(set, number), std::ldexp(set.feature, 1 - number));
    const std::vector<double> heights = Heights(set.recipe(make), side);
    const auto [low, high] = std::minmax_element(heights.begin(), heights.end());
    const double span = 65535.0 * set.ranges[static_cast<std::size_t>(number - 1)];
    const double scale = span / (*high - *low);
    const double lowest = (65535.0 - span) / 2.0;

    LevelPicture picture{side, {}};
    picture.levels.reserve(heights.size());
    for (const double height : heights)
        picture.levels.push_back(
            static_cast<std::uint16_t>(std::lround(lowest + scale * (height - *low))));
    return picture;
}

std::string PictureFile(const PerlinSet& set, int number) {
    return std::string(set.file) + '-' + std::to_string(number) + ".png";
}

std::string DescribeSet(const PerlinSet& set) {
    std::string text = std::string("[SET]\nNAME=") + set.name + "\n\n[PERLIN]\n";
    for (int number = 1; number <= pictureCount; ++number)
        text += '0' + std::to_string(number) + '=' + PictureFile(set, number) + '\n';
    return text;
}

}  // namespace quillbrand::perlin
