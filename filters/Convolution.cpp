#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "base/VectorClones.h"
#include "filters/Bodies.h"
#include "filters/Grey.h"

namespace quillbrand::mFilterG {

namespace {

/// Nine weights, the upper row first, over 1 or 2. All sums fit into 16 bits.
struct Kernel {
    std::array<int, 9> weights;
    int divisor;
};

constexpr Kernel laplacian{{-1, -1, -1, -1, 8, -1, -1, -1, -1}, 1};
constexpr Kernel prewitt{{1, 0, -1, 1, 0, -1, 1, 0, -1}, 1};
constexpr Kernel mirroredPrewitt{{-1, 0, 1, -1, 0, 1, -1, 0, 1}, 1};
constexpr Kernel diagonalSobel{{2, 1, 0, 1, 0, -1, 0, -1, -2}, 2};
constexpr Kernel highBoost{{-1, -1, -1, -1, 10, -1, -1, -1, -1}, 2};

/// A row of the picture as it was, with its neighbours.
struct Window {
    const std::uint8_t* up;
    const std::uint8_t* mid;
    const std::uint8_t* down;
};

constexpr std::uint8_t LimitToByte(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

/// The bytes begin..end - 1 of `out`. `offsets` are added to the quotients.
template <Kernel kernel>
[[gnu::always_inline]] inline void Convolve(const Window& rows, const std::int16_t* offsets,
                                            std::ptrdiff_t begin, std::ptrdiff_t end,
                                            std::uint8_t* __restrict out) {
    constexpr auto& w = kernel.weights;
    const std::uint8_t* up = rows.up;
    const std::uint8_t* mid = rows.mid;
    const std::uint8_t* down = rows.down;
    for (std::ptrdiff_t i = begin; i < end; ++i) {
        // 16 bits make twice as many lanes as 32.
        auto sum = static_cast<std::int16_t>(
            w[0] * up[i - channels] + w[1] * up[i] + w[2] * up[i + channels] +
            w[3] * mid[i - channels] + w[4] * mid[i] + w[5] * mid[i + channels] +
            w[6] * down[i - channels] + w[7] * down[i] + w[8] * down[i + channels]);
        if (kernel.divisor == 2)
            sum = static_cast<std::int16_t>((sum + (sum < 0 ? 1 : 0)) >> 1);
        out[i] = LimitToByte(sum + offsets[i]);
    }
}

using ConvolveRow = void (*)(const Window&, const std::int16_t*, std::ptrdiff_t, std::ptrdiff_t,
                             std::uint8_t*);

QB_VECTOR_CLONES void ConvolveLaplacian(const Window& rows, const std::int16_t* offsets,
                                        std::ptrdiff_t begin, std::ptrdiff_t end,
                                        std::uint8_t* out) {
    Convolve<laplacian>(rows, offsets, begin, end, out);
}

QB_VECTOR_CLONES void ConvolvePrewitt(const Window& rows, const std::int16_t* offsets,
                                      std::ptrdiff_t begin, std::ptrdiff_t end, std::uint8_t* out) {
    Convolve<prewitt>(rows, offsets, begin, end, out);
}

QB_VECTOR_CLONES void ConvolveMirroredPrewitt(const Window& rows, const std::int16_t* offsets,
                                              std::ptrdiff_t begin, std::ptrdiff_t end,
                                              std::uint8_t* out) {
    Convolve<mirroredPrewitt>(rows, offsets, begin, end, out);
}

QB_VECTOR_CLONES void ConvolveDiagonalSobel(const Window& rows, const std::int16_t* offsets,
                                            std::ptrdiff_t begin, std::ptrdiff_t end,
                                            std::uint8_t* out) {
    Convolve<diagonalSobel>(rows, offsets, begin, end, out);
}

QB_VECTOR_CLONES void ConvolveHighBoost(const Window& rows, const std::int16_t* offsets,
                                        std::ptrdiff_t begin, std::ptrdiff_t end,
                                        std::uint8_t* out) {
    Convolve<highBoost>(rows, offsets, begin, end, out);
}

/// Runs over the pixels inside the ring. Rows above the present one are overwritten already, so the
/// two that are still needed are kept as they were.
void RunInside(Job& job, const std::vector<std::int16_t>& offsets, ConvolveRow convolve) {
    const std::ptrdiff_t end = job.Width() - 1;
    std::vector<Pixel> up(static_cast<std::size_t>(job.Width()));
    std::vector<Pixel> mid(job.Row(0), job.Row(0) + job.Width());
    std::vector<Pixel> out(static_cast<std::size_t>(job.Width()));
    for (int y = 1; y < job.Height() - 1; ++y) {
        up.swap(mid);
        std::memcpy(mid.data(), job.Row(y), job.RowBytes());
        convolve({BytesOf(up.data()), BytesOf(mid.data()), job.Bytes(y + 1)}, offsets.data(),
                 channels, channels * end, BytesOf(out.data()));
        Recolour(job.Row(y), out.data(), 1, end);
        job.RowDone(y);
    }
}

/// The bytes of a row become the size of sign * (their own - the lower right ones) + offset.
QB_VECTOR_CLONES void SubtractLowerRight(const std::uint8_t* mid, const std::uint8_t* down,
                                         std::ptrdiff_t count, int sign,
                                         const std::int16_t* offsets,
                                         std::uint8_t* __restrict out) {
    for (std::ptrdiff_t i = 0; i < count; ++i)
        out[i] = LimitToByte(std::abs(sign * (mid[i] - down[i + channels]) + offsets[i]));
}

void RunTwoPoints(Job& job, int sign) {
    const std::ptrdiff_t end = job.Width() - 1;
    const auto offsets = job.LevelByChannel();
    std::vector<Pixel> out(static_cast<std::size_t>(job.Width()));
    for (int y = 0; y < job.Height() - 1; ++y) {
        SubtractLowerRight(job.Bytes(y), job.Bytes(y + 1), channels * end, sign, offsets.data(),
                           BytesOf(out.data()));
        Recolour(job.Row(y), out.data(), 0, end);
        job.RowDone(y);
    }
}

}  // namespace

void Contour(Job& job) {
    RunInside(job, job.LevelByChannel(), ConvolveLaplacian);
}

void ReliefToLowerRight(Job& job) {
    RunTwoPoints(job, 1);
}

void ReliefToUpperLeft(Job& job) {
    RunTwoPoints(job, -1);
}

void ReliefToRight(Job& job) {
    RunInside(job, job.LevelByChannel(), ConvolvePrewitt);
}

void ReliefToLeft(Job& job) {
    RunInside(job, job.LevelByChannel(), ConvolveMirroredPrewitt);
}

void DiagonalRelief(Job& job) {
    RunInside(job, std::vector<std::int16_t>(job.RowBytes(), 50), ConvolveDiagonalSobel);
}

void EdgesOverMean(Job& job) {
    const Pixel grey = GreyPixel(MeanGrey(job));
    job.Reached(5);
    const auto width = static_cast<std::size_t>(job.Width());
    std::vector<Pixel> up(width + 2, grey);
    std::vector<Pixel> mid(width + 2, grey);
    std::vector<Pixel> down(width + 2, grey);
    std::vector<Pixel> out(width + 2);
    const std::vector<std::int16_t> offsets(channels * (width + 2), 0);
    std::memcpy(&mid[1], job.Row(0), job.RowBytes());
    for (int y = 0; y < job.Height(); ++y) {
        if (y + 1 < job.Height())
            std::memcpy(&down[1], job.Row(y + 1), job.RowBytes());
        else
            std::fill(down.begin(), down.end(), grey);
        ConvolveHighBoost({BytesOf(up.data()), BytesOf(mid.data()), BytesOf(down.data())},
                          offsets.data(), channels, channels * (job.Width() + 1),
                          BytesOf(out.data()));
        Recolour(job.Row(y), &out[1], 0, job.Width());
        job.RowDone(y);
        up.swap(mid);
        mid.swap(down);
    }
}

}  // namespace quillbrand::mFilterG
