#include <cstdlib>

#include "base/VectorClones.h"
#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

namespace {

/// Mean and spread of the 3 x 3 windows about each byte of a row. A window serves the four pixels
/// that have it at a corner.
struct WindowRow {
    explicit WindowRow(std::size_t bytes) : means(bytes), spreads(bytes) {}
    std::vector<std::uint16_t> means;
    std::vector<std::uint16_t> spreads;
};

/// Three rows of windows by their number, of which the oldest makes room.
using WindowRows = std::array<WindowRow, 3>;

/// The windows about the bytes begin..end - 1 of `mid`.
QB_VECTOR_CLONES void MeasureWindows(const std::uint8_t* up, const std::uint8_t* mid,
                                     const std::uint8_t* down, std::ptrdiff_t begin,
                                     std::ptrdiff_t end, std::uint16_t* __restrict means,
                                     std::uint16_t* __restrict spreads) {
    const std::uint8_t* rows[3] = {up, mid, down};
    for (std::ptrdiff_t i = begin; i < end; ++i) {
        std::uint16_t sum = 0;
        for (const std::uint8_t* row : rows)
            sum = static_cast<std::uint16_t>(sum + row[i - channels] + row[i] + row[i + channels]);
        // A ninth, exact for all sums of nine bytes.
        const auto mean = static_cast<std::uint16_t>(sum * 7282u >> 16);
        std::uint16_t spread = 0;
        for (const std::uint8_t* row : rows)
            for (std::ptrdiff_t j = i - channels; j <= i + channels; j += channels)
                spread = static_cast<std::uint16_t>(spread + std::abs(row[j] - mean));
        means[i] = mean;
        spreads[i] = spread;
    }
}

struct Best {
    std::uint16_t spread;
    std::uint16_t mean;
};

/// The better of two windows; of equals the first.
[[gnu::always_inline]] inline Best Better(Best first, Best second) {
    const bool wins = second.spread < first.spread;
    return {wins ? second.spread : first.spread, wins ? second.mean : first.mean};
}

/// The mean of the best window for the bytes begin..end - 1 between two rows of windows.
QB_VECTOR_CLONES void TakeBest(const WindowRow& upper, const WindowRow& lower, std::ptrdiff_t begin,
                               std::ptrdiff_t end, std::uint8_t* __restrict out) {
    const std::uint16_t* upperMeans = upper.means.data();
    const std::uint16_t* upperSpreads = upper.spreads.data();
    const std::uint16_t* lowerMeans = lower.means.data();
    const std::uint16_t* lowerSpreads = lower.spreads.data();
    for (std::ptrdiff_t i = begin; i < end; ++i) {
        const std::ptrdiff_t left = i - channels;
        const std::ptrdiff_t right = i + channels;
        Best best{upperSpreads[left], upperMeans[left]};
        best = Better(best, {upperSpreads[right], upperMeans[right]});
        best = Better(best, {lowerSpreads[left], lowerMeans[left]});
        best = Better(best, {lowerSpreads[right], lowerMeans[right]});
        out[i] = static_cast<std::uint8_t>(best.mean);
    }
}

}  // namespace

void Kuwahara(Job& job) {
    const std::ptrdiff_t end = job.Width() - 1;
    const WindowRow empty(job.RowBytes());
    WindowRows windows = {empty, empty, empty};
    std::vector<Pixel> out(static_cast<std::size_t>(job.Width()));
    const auto rowOf = [&](int y) -> WindowRow& {
        return windows[static_cast<std::size_t>(y % 3)];
    };
    const auto measure = [&](int y) {
        MeasureWindows(job.Bytes(y - 1), job.Bytes(y), job.Bytes(y + 1), channels, channels * end,
                       rowOf(y).means.data(), rowOf(y).spreads.data());
    };
    if (job.Height() > 4) {
        measure(1);
        measure(2);
    }
    // The windows below a row are measured before the row changes, so all see the picture as it
    // was.
    for (int y = 2; y < job.Height() - 2; ++y) {
        measure(y + 1);
        TakeBest(rowOf(y - 1), rowOf(y + 1), channels * 2, channels * (end - 1),
                 BytesOf(out.data()));
        Recolour(job.Row(y), out.data(), 2, end - 1);
        job.RowDone(y);
    }
}

}  // namespace quillbrand::mFilterG
