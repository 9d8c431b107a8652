#include <cstring>

#include "base/Picture.h"
#include "bench/CopyUnit.h"
#include "filters/mFilterG.h"

namespace quillbrand {
namespace {

constexpr int pictureSide = 1024;

/// The levels that the menus give, where they do, and the figures aimed at.
struct Aim {
    int level;
    double copies;
};

constexpr Aim aims[] = {
    {5, 4},   {0, 4},   {4, 5}, {10, 15}, {3, 5},   {5, 4},   {5, 3},   {5, 4},
    {5, 4},   {5, 4},   {5, 4}, {0, 0.5}, {0, 4},   {20, 4},  {7, 4},   {3, 4},
    {100, 3}, {99, 4},  {0, 4}, {0, 4},   {127, 8}, {127, 8}, {127, 8}, {2, 6},
    {3, 1.2}, {3, 1.2}, {3, 4}, {0, 4},   {13, 6},  {50, 4},  {150, 4}, {5, 0.5},
};

/// Grey hills under coloured noise, so that no loop can guess what comes.
Picture NoisyPicture() {
    Picture picture(pictureSide, pictureSide);
    RandomSource chance(1);
    for (int y = 0; y < pictureSide; ++y) {
        for (int x = 0; x < pictureSide; ++x) {
            const int hill = 20 + (x * y / 2048 + x) % 200;
            const auto channel = [&] { return hill + static_cast<int>(chance.Uniform() * 36); };
            picture.Row(y)[x] = qRgb(channel(), channel(), channel());
        }
    }
    return picture;
}

/// Each turn starts from the same picture in warm memory.
void PictureFilter(benchmark::State& state) {
    const int id = static_cast<int>(state.range(0));
    const Aim aim = aims[id - 1];
    const Picture original = NoisyPicture();
    Picture picture(pictureSide, pictureSide);
    SilentHost host;
    MeasureInCopies(
        state, aim.copies,
        [&] {
            for (int y = 0; y < pictureSide; ++y)
                std::memcpy(picture.Row(y), original.Row(y), pictureSide * sizeof(QRgb));
        },
        [&] { mFilterG::ApplyPictureFilter(id, picture, aim.level, host); });
}
QB_BENCHMARK(PictureFilter)->DenseRange(1, 32);

}  // namespace
}  // namespace quillbrand
