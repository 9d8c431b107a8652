#include "base/RandomSource.h"

#include <algorithm>
#include <chrono>

#include "base/VectorClones.h"

namespace quillbrand {

namespace {

constexpr std::size_t block = 624;
constexpr std::size_t reach = 397;

inline std::uint32_t Twist(std::uint32_t high, std::uint32_t low) {
    const std::uint32_t mixed = (high & 0x80000000u) | (low & 0x7fffffffu);
    return (mixed >> 1) ^ ((0u - (mixed & 1u)) & 0x9908b0dfu);
}

/// One step of the whole state. The second loop reads what the first wrote, 227 places back, so
/// both run in vectors.
QB_VECTOR_CLONES void Advance(std::uint32_t* state) {
    constexpr std::size_t back = block - reach;
    for (std::size_t i = 0; i < back; ++i)
        state[i] = state[i + reach] ^ Twist(state[i], state[i + 1]);
#pragma GCC ivdep
    for (std::size_t i = back; i < 2 * back; ++i)
        state[i] = state[i - back] ^ Twist(state[i], state[i + 1]);
#pragma GCC ivdep
    for (std::size_t i = 2 * back; i < block - 1; ++i)
        state[i] = state[i - back] ^ Twist(state[i], state[i + 1]);
    state[block - 1] = state[reach - 1] ^ Twist(state[block - 1], state[0]);
}

QB_VECTOR_CLONES void Temper(const std::uint32_t* state, std::uint32_t* outputs) {
    for (std::size_t i = 0; i < block; ++i) {
        std::uint32_t y = state[i];
        y ^= y >> 11;
        y ^= (y << 7) & 0x9d2c5680u;
        y ^= (y << 15) & 0xefc60000u;
        outputs[i] = y ^ (y >> 18);
    }
}

std::uint32_t SeedFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    const auto bits = static_cast<std::uint64_t>(ticks);
    return static_cast<std::uint32_t>(bits ^ (bits >> 32));
}

}  // namespace

RandomSource::RandomSource(std::optional<std::uint32_t> fixedSeed)
    : fixed_(fixedSeed.has_value()), outputs_{} {
    Seed(fixedSeed ? *fixedSeed : SeedFromClock());
}

void RandomSource::ReseedFromClock() {
    if (!fixed_)
        Seed(SeedFromClock());
}

void RandomSource::Seed(std::uint32_t seed) {
    state_[0] = seed;
    for (std::uint32_t i = 1; i < block; ++i)
        state_[i] = 1812433253u * (state_[i - 1] ^ (state_[i - 1] >> 30)) + i;
    next_ = block;
}

void RandomSource::Refill() {
    Advance(state_.data());
    Temper(state_.data(), outputs_.data());
    next_ = 0;
}

void RandomSource::Fill(std::span<double> target) {
    while (!target.empty()) {
        if (next_ == block)
            Refill();
        const std::size_t count = std::min(target.size(), block - next_);
        for (std::size_t i = 0; i < count; ++i)
            target[i] = ToUniform(outputs_[next_ + i]);
        next_ += count;
        target = target.subspan(count);
    }
}

void RandomSource::Discard(std::size_t count) {
    const std::size_t ready = block - next_;
    if (count <= ready) {
        next_ += count;
        return;
    }
    count -= ready;
    for (; count > block; count -= block)
        Advance(state_.data());
    Refill();
    next_ = count;
}

}  // namespace quillbrand
