#include "data/river/Drainage.h"

#include <algorithm>
#include <array>
#include <functional>
#include <queue>
#include <utility>

#include "data/perlin/Scatter.h"

namespace quillbrand::river {

namespace {

struct Step {
    int dx;
    int dy;
    double length;
};

constexpr double diagonal = 1.4142135623730951;
constexpr std::array<Step, 8> ways{{{1, 0, 1.0},
                                    {1, 1, diagonal},
                                    {0, 1, 1.0},
                                    {-1, 1, diagonal},
                                    {-1, 0, 1.0},
                                    {-1, -1, diagonal},
                                    {0, -1, 1.0},
                                    {1, -1, diagonal}}};

/// Least fall from a filled point to the next.
constexpr double leastFall = 1e-6;

/// The steepest way down from (x, y), the slopes shaken.
int ReceiverOf(const Relief& relief, int x, int y, int seed, double& distance) {
    const std::size_t here = relief.At(x, y);
    std::size_t best = here;
    double steepest = 0.0;
    for (int way = 0; way < 8; ++way) {
        const Step& step = ways[static_cast<std::size_t>(way)];
        const std::size_t there = relief.At(x + step.dx, y + step.dy);
        const double fall = relief.height[here] - relief.height[there];
        const double chance = perlin::CellBits(x, y, seed + way) / 4294967296.0;
        const double slope = fall / step.length * (0.6 + 0.8 * chance);
        if (slope > steepest) {
            steepest = slope;
            best = there;
            distance = step.length * relief.cell;
        }
    }
    return static_cast<int>(best);
}

/// All points, each after its receiver.
std::vector<int> Upwards(const std::vector<int>& receiver) {
    const std::size_t count = receiver.size();
    std::vector<int> firstDonor(count + 1, 0);
    for (std::size_t i = 0; i < count; ++i)
        if (receiver[i] != static_cast<int>(i))
            ++firstDonor[static_cast<std::size_t>(receiver[i]) + 1];
    for (std::size_t i = 0; i < count; ++i)
        firstDonor[i + 1] += firstDonor[i];

    std::vector<int> donors(static_cast<std::size_t>(firstDonor[count]));
    std::vector<int> next(firstDonor.begin(), firstDonor.end() - 1);
    std::vector<int> order;
    order.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto down = static_cast<std::size_t>(receiver[i]);
        if (down == i)
            order.push_back(static_cast<int>(i));
        else
            donors[static_cast<std::size_t>(next[down]++)] = static_cast<int>(i);
    }
    for (std::size_t at = 0; at < order.size(); ++at) {
        const auto down = static_cast<std::size_t>(order[at]);
        for (int i = firstDonor[down]; i < firstDonor[down + 1]; ++i)
            order.push_back(donors[static_cast<std::size_t>(i)]);
    }
    return order;
}

}  // namespace

void FillPits(Relief& relief) {
    using Place = std::pair<double, int>;
    std::priority_queue<Place, std::vector<Place>, std::greater<>> open;
    std::vector<char> seen(relief.height.size(), 0);
    for (int y = 0; y < relief.side; ++y) {
        for (int x = 0; x < relief.side; ++x) {
            if (relief.IsRim(x, y)) {
                open.emplace(relief.height[relief.At(x, y)], static_cast<int>(relief.At(x, y)));
                seen[relief.At(x, y)] = 1;
            }
        }
    }
    while (!open.empty()) {
        const auto [level, point] = open.top();
        open.pop();
        const int x = point % relief.side;
        const int y = point / relief.side;
        for (const Step& step : ways) {
            const int toX = x + step.dx;
            const int toY = y + step.dy;
            if (toX < 0 || toY < 0 || toX >= relief.side || toY >= relief.side ||
                seen[relief.At(toX, toY)] != 0)
                continue;
            const std::size_t there = relief.At(toX, toY);
            seen[there] = 1;
            relief.height[there] = std::max(relief.height[there], level + leastFall);
            open.emplace(relief.height[there], static_cast<int>(there));
        }
    }
}

Flow RouteFlow(const Relief& relief, int seed) {
    const std::size_t count = relief.height.size();
    Flow flow{std::vector<int>(count),
              {},
              std::vector<double>(count, relief.cell),
              std::vector<double>(count, relief.cell * relief.cell)};
    for (int y = 0; y < relief.side; ++y) {
        for (int x = 0; x < relief.side; ++x) {
            const std::size_t here = relief.At(x, y);
            flow.receiver[here] = relief.IsRim(x, y)
                                      ? static_cast<int>(here)
                                      : ReceiverOf(relief, x, y, seed, flow.distance[here]);
        }
    }
    flow.upwards = Upwards(flow.receiver);
    for (std::size_t at = count; at-- > 0;) {
        const auto i = static_cast<std::size_t>(flow.upwards[at]);
        const auto down = static_cast<std::size_t>(flow.receiver[i]);
        if (down != i)
            flow.area[down] += flow.area[i];
    }
    return flow;
}

}  // namespace quillbrand::river
