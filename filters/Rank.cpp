#include <algorithm>

#include "base/VectorClones.h"
#include "filters/Bodies.h"

namespace quillbrand::mFilterG {

namespace {

struct Greater {
    static std::uint8_t Of(std::uint8_t a, std::uint8_t b) { return std::max(a, b); }
};

struct Lesser {
    static std::uint8_t Of(std::uint8_t a, std::uint8_t b) { return std::min(a, b); }
};

/// The winner of each byte and its two neighbours in the row.
template <typename Winner>
[[gnu::always_inline]] inline void AlongRow(const std::uint8_t* row, std::ptrdiff_t begin,
                                            std::ptrdiff_t end, std::uint8_t* __restrict out) {
    for (std::ptrdiff_t i = begin; i < end; ++i)
        out[i] = Winner::Of(Winner::Of(row[i - channels], row[i + channels]), row[i]);
}

/// The winner of three rows' winners. The fourth bytes are left over.
template <typename Winner>
[[gnu::always_inline]] inline void DownColumns(const Pixel* up, const Pixel* mid, const Pixel* down,
                                               std::ptrdiff_t begin, std::ptrdiff_t end,
                                               Pixel* __restrict out) {
    const auto* a = reinterpret_cast<const std::uint8_t*>(up);
    const auto* b = reinterpret_cast<const std::uint8_t*>(mid);
    const auto* c = reinterpret_cast<const std::uint8_t*>(down);
    std::uint8_t* target = BytesOf(out);
    for (std::ptrdiff_t i = channels * begin; i < channels * end; ++i)
        target[i] = Winner::Of(Winner::Of(a[i], b[i]), c[i]);
}

QB_VECTOR_CLONES void GreatestAlongRow(const std::uint8_t* row, std::ptrdiff_t begin,
                                       std::ptrdiff_t end, std::uint8_t* out) {
    AlongRow<Greater>(row, begin, end, out);
}

QB_VECTOR_CLONES void LeastAlongRow(const std::uint8_t* row, std::ptrdiff_t begin,
                                    std::ptrdiff_t end, std::uint8_t* out) {
    AlongRow<Lesser>(row, begin, end, out);
}

QB_VECTOR_CLONES void GreatestDownColumns(const Pixel* up, const Pixel* mid, const Pixel* down,
                                          std::ptrdiff_t begin, std::ptrdiff_t end, Pixel* out) {
    DownColumns<Greater>(up, mid, down, begin, end, out);
}

QB_VECTOR_CLONES void LeastDownColumns(const Pixel* up, const Pixel* mid, const Pixel* down,
                                       std::ptrdiff_t begin, std::ptrdiff_t end, Pixel* out) {
    DownColumns<Lesser>(up, mid, down, begin, end, out);
}

struct Passes {
    void (*alongRow)(const std::uint8_t*, std::ptrdiff_t, std::ptrdiff_t, std::uint8_t*);
    void (*downColumns)(const Pixel*, const Pixel*, const Pixel*, std::ptrdiff_t, std::ptrdiff_t,
                        Pixel*);
};

/// Keeps the winners along three rows; the row below is searched before the present one changes.
void Run(Job& job, const Passes& passes) {
    const std::ptrdiff_t end = job.Width() - 1;
    const auto width = static_cast<std::size_t>(job.Width());
    std::vector<Pixel> up(width);
    std::vector<Pixel> mid(width);
    std::vector<Pixel> down(width);
    std::vector<Pixel> out(width);
    const auto search = [&](int y, std::vector<Pixel>& winners) {
        passes.alongRow(job.Bytes(y), channels, channels * end, BytesOf(winners.data()));
    };
    if (job.Height() > 2) {
        search(0, mid);
        search(1, down);
    }
    for (int y = 1; y < job.Height() - 1; ++y) {
        up.swap(mid);
        mid.swap(down);
        search(y + 1, down);
        passes.downColumns(up.data(), mid.data(), down.data(), 1, end, out.data());
        Recolour(job.Row(y), out.data(), 1, end);
        job.RowDone(y);
    }
}

}  // namespace

void Dilate(Job& job) {
    Run(job, {GreatestAlongRow, GreatestDownColumns});
}

void Erode(Job& job) {
    Run(job, {LeastAlongRow, LeastDownColumns});
}

void LeastOfNine(Job& job) {
    Erode(job);
}

}  // namespace quillbrand::mFilterG
