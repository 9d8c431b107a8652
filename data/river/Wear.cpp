#include "data/river/Wear.h"

#include <cmath>

namespace quillbrand::river {

namespace {

void RiseAndCut(Relief& relief, const Flow& flow, const std::vector<double>& softness,
                const Wear& wear) {
    for (const int point : flow.upwards) {
        const auto i = static_cast<std::size_t>(point);
        const auto down = static_cast<std::size_t>(flow.receiver[i]);
        if (down == i)
            continue;
        const double cut = softness[i] * wear.timeStep * std::sqrt(flow.area[i]) / flow.distance[i];
        relief.height[i] =
            (relief.height[i] + wear.timeStep + cut * relief.height[down]) / (1.0 + cut);
    }
}

/// One implicit step of diffusion along a line whose ends stay: the Thomas algorithm.
void DiffuseLine(std::vector<double>& height, std::size_t first, std::size_t stride,
                 std::size_t count, double rate, std::vector<double>& factor) {
    factor[0] = 0.0;
    for (std::size_t k = 1; k + 1 < count; ++k) {
        double& here = height[first + k * stride];
        const double pivot = 1.0 + 2.0 * rate - rate * factor[k - 1];
        factor[k] = rate / pivot;
        here = (here + rate * height[first + (k - 1) * stride]) / pivot;
    }
    for (std::size_t k = count - 2; k > 0; --k)
        height[first + k * stride] += factor[k] * height[first + (k + 1) * stride];
}

/// Along the rows, then along the columns.
void Diffuse(Relief& relief, double amount) {
    const auto side = static_cast<std::size_t>(relief.side);
    const double rate = amount / (relief.cell * relief.cell);
    std::vector<double> factor(side);
    for (std::size_t line = 1; line + 1 < side; ++line)
        DiffuseLine(relief.height, line * side, 1, side, rate, factor);
    for (std::size_t line = 1; line + 1 < side; ++line)
        DiffuseLine(relief.height, line, side, side, rate, factor);
}

}  // namespace

void Evolve(Relief& relief, const std::vector<double>& softness, const Wear& wear, int seed) {
    for (int step = 0; step < wear.steps; ++step) {
        FillPits(relief);
        RiseAndCut(relief, RouteFlow(relief, seed), softness, wear);
        Diffuse(relief, wear.creep * wear.timeStep);
    }
    FillPits(relief);
}

Relief Refined(const Relief& relief) {
    Relief fine{2 * relief.side - 1, relief.cell / 2.0, {}};
    fine.height.resize(static_cast<std::size_t>(fine.side) * static_cast<std::size_t>(fine.side));
    for (int y = 0; y < fine.side; ++y) {
        for (int x = 0; x < fine.side; ++x) {
            const int left = x / 2;
            const int top = y / 2;
            const int right = (x + 1) / 2;
            const int bottom = (y + 1) / 2;
            fine.height[fine.At(x, y)] =
                0.25 *
                (relief.height[relief.At(left, top)] + relief.height[relief.At(right, top)] +
                 relief.height[relief.At(left, bottom)] + relief.height[relief.At(right, bottom)]);
        }
    }
    return fine;
}

}  // namespace quillbrand::river
