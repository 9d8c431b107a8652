#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace quillbrand {

/// Uniform random numbers in [0, 1): the outputs of the 32-bit Mersenne twister (M. Matsumoto,
/// T. Nishimura, ACM TOMACS 8, 1998), in the very sequence of `std::mt19937`, divided by 2^32.
/// They are made in blocks of 624, which costs a fraction of drawing them one by one.
class RandomSource {
  public:
    /// Without a seed the source is seeded from the clock. With one it is fixed: the sequence is
    /// the same on every machine and ReseedFromClock() does nothing.
    explicit RandomSource(std::optional<std::uint32_t> fixedSeed = std::nullopt);

    double Uniform() {
        if (next_ == block)
            Refill();
        return ToUniform(outputs_[next_++]);
    }

    /// As many numbers as `target` has places, in the order of as many calls of Uniform().
    void Fill(std::span<double> target);

    /// As if Uniform() had been called `count` times.
    void Discard(std::size_t count);

    void ReseedFromClock();

  private:
    static constexpr std::size_t block = 624;

    /// Through a signed number, which converts in vector registers on every machine; exact.
    static double ToUniform(std::uint32_t output) {
        const auto shifted = static_cast<std::int32_t>(output ^ 0x80000000u);
        return (static_cast<double>(shifted) + 2147483648.0) * (1.0 / 4294967296.0);
    }

    void Seed(std::uint32_t seed);
    void Refill();

    bool fixed_;
    std::size_t next_ = block;
    std::array<std::uint32_t, block> state_;
    std::array<std::uint32_t, block> outputs_;
};

}  // namespace quillbrand
