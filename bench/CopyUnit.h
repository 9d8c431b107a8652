#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <vector>

#include "base/GridMemory.h"
#include "base/Host.h"
#include "terrain/clsTerrain.h"

namespace quillbrand {

/// Points per side of the grid that everything is measured on.
constexpr int benchPoints = 2049;

/// A host that does nothing, with a fixed source of chance.
class SilentHost : public Host {
  public:
    void Status(std::string_view) override {}
    void Busy(bool) override {}
    void Progress(int) override {}
    void Yield() override {}
    void ActualScreen() override {}
    Answer Ask(const Question&) override { return Answer::No; }
    RandomSource& Chance() override { return chance_; }

  private:
    RandomSource chance_{1};
};

/// One copy of the grid's memory, the unit of every figure; warm memory on both sides.
class CopyUnit {
  public:
    CopyUnit() : from_(cells, 1), to_(cells, 2) {}

    double Seconds() {
        const auto start = std::chrono::steady_clock::now();
        std::memcpy(to_.data(), from_.data(), cells * sizeof(Height));
        benchmark::DoNotOptimize(to_.data());
        benchmark::ClobberMemory();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

  private:
    static constexpr std::size_t cells = std::size_t{benchPoints + 2} * (benchPoints + 2);
    GridBuffer<Height> from_;
    GridBuffer<Height> to_;
};

/// Times `run` after an untimed `prepare`, with a copy of the grid beside each turn, and reports
/// the median of the turns' ratios as "copies" beside the figure aimed at.
template <typename Prepare, typename Run>
void MeasureInCopies(benchmark::State& state, double target, Prepare prepare, Run run) {
    CopyUnit copy;
    std::vector<double> ratios;
    for ([[maybe_unused]] auto turn : state) {
        prepare();
        const double unit = copy.Seconds();
        const auto start = std::chrono::steady_clock::now();
        run();
        benchmark::ClobberMemory();
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        state.SetIterationTime(seconds);
        ratios.push_back(seconds / unit);
    }
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::nth_element(ratios.begin(), middle, ratios.end());
    state.counters["copies"] = *middle;
    state.counters["target"] = target;
}

}  // namespace quillbrand

/// Registers a benchmark in the project's manner.
#define QB_BENCHMARK(function) \
    BENCHMARK(function)->Unit(benchmark::kMillisecond)->UseManualTime()->MinTime(1.0)
