#include <algorithm>
#include <cmath>

#include "base/Numbers.h"
#include "base/VectorClones.h"
#include "filters/Bodies.h"
#include "filters/Grey.h"

namespace quillbrand::mFilterG {

namespace {

/// What each value of a channel becomes.
using ByteTable = std::array<std::uint8_t, 256>;

std::uint8_t RoundToByte(double value) {
    return static_cast<std::uint8_t>(RoundHalfEven(std::clamp(value, 0.0, 255.0)));
}

template <typename Formula>
ByteTable TableOf(Formula formula) {
    ByteTable table{};
    for (int i = 0; i < 256; ++i)
        table[static_cast<std::size_t>(i)] = RoundToByte(formula(i));
    return table;
}

/// Each channel through its table: blue, green, red.
void ApplyTables(Job& job, const std::array<ByteTable, 3>& tables) {
    const auto& [blue, green, red] = tables;
    for (int y = 0; y < job.Height(); ++y) {
        std::uint8_t* row = job.Bytes(y);
        std::uint8_t* const end = row + job.RowBytes();
        for (; row != end; row += channels) {
            row[0] = blue[row[0]];
            row[1] = green[row[1]];
            row[2] = red[row[2]];
        }
        job.RowDone(y);
    }
}

void ApplyTable(Job& job, const ByteTable& table) {
    ApplyTables(job, {table, table, table});
}

QB_VECTOR_CLONES std::int64_t SumOfGreys(const Pixel* row, int width) {
    std::int64_t total = 0;
    for (int x = 0; x < width; ++x)
        total += GreyOf(row[x]);
    return total;
}

QB_VECTOR_CLONES void NegateRow(Pixel* row, int width) {
    for (int x = 0; x < width; ++x)
        row[x] ^= white;
}

QB_VECTOR_CLONES void GreyRow(Pixel* row, int width) {
    for (int x = 0; x < width; ++x)
        row[x] = Recoloured(row[x], GreyPixel(GreyOf(row[x])));
}

/// How far right a channel's old place lies.
struct OldPlaces {
    int blue;
    int green;
    int red;
};

QB_VECTOR_CLONES void SwapRow(Pixel* row, int width, const OldPlaces& old) {
    const auto [blue, green, red] = old;
    for (int x = 0; x < width; ++x) {
        const Pixel p = row[x];
        row[x] =
            (p & ~white) | (p >> blue & 255) | (p >> green & 255) << 8 | (p >> red & 255) << 16;
    }
}

/// Draws a channel away from grey by `factor`.
[[gnu::always_inline]] inline Pixel Saturated(int value, int grey, double factor) {
    const double drawn = factor * (value - grey) + value;
    return static_cast<Pixel>(static_cast<int>(std::rint(std::min(std::max(drawn, 0.0), 255.0))));
}

QB_VECTOR_CLONES void SaturateRow(Pixel* row, int width, double factor) {
    for (int x = 0; x < width; ++x) {
        const Pixel p = row[x];
        const int grey = GreyOf(p);
        row[x] = (p & ~white) | Saturated(Blue(p), grey, factor) |
                 Saturated(Green(p), grey, factor) << 8 | Saturated(Red(p), grey, factor) << 16;
    }
}

/// Least and greatest of blue, green and red.
struct Extremes {
    std::array<int, 3> least{255, 255, 255};
    std::array<int, 3> greatest{};
};

QB_VECTOR_CLONES void FindExtremes(const Pixel* row, int width, Extremes& found) {
    Extremes extremes = found;
    for (int x = 0; x < width; ++x) {
        const std::array<int, 3> values = {Blue(row[x]), Green(row[x]), Red(row[x])};
        for (std::size_t c = 0; c < values.size(); ++c) {
            extremes.least[c] = std::min(extremes.least[c], values[c]);
            extremes.greatest[c] = std::max(extremes.greatest[c], values[c]);
        }
    }
    found = extremes;
}

}  // namespace

int MeanGrey(Job& job) {
    std::int64_t total = 0;
    for (int y = 0; y < job.Height(); ++y)
        total += SumOfGreys(job.Row(y), job.Width());
    return static_cast<int>(total / (std::int64_t{job.Width()} * job.Height()));
}

void Negate(Job& job) {
    for (int y = 0; y < job.Height(); ++y) {
        NegateRow(job.Row(y), job.Width());
        job.RowDone(y);
    }
}

void Grey(Job& job) {
    for (int y = 0; y < job.Height(); ++y) {
        GreyRow(job.Row(y), job.Width());
        job.RowDone(y);
    }
}

void Brighten(Job& job) {
    const double percent = double{100} + job.Level();
    ApplyTable(job, TableOf([&](int i) { return i * percent / 100; }));
}

void SwapChannels(Job& job) {
    // Where blue, green and red find their new values.
    constexpr std::array<OldPlaces, 5> orders = {
        {{8, 0, 16}, {0, 16, 8}, {16, 0, 8}, {8, 16, 0}, {16, 8, 0}}};
    for (int y = 0; y < job.Height(); ++y) {
        if (job.Level() >= 1 && job.Level() <= 5)
            SwapRow(job.Row(y), job.Width(), orders[static_cast<std::size_t>(job.Level()) - 1]);
        job.RowDone(y);
    }
}

void Contrast(Job& job) {
    const int mean = MeanGrey(job);
    const double factor = static_cast<float>((job.Level() + 100.0) / 100.0);
    const ByteTable table = TableOf([&](int i) { return (i - mean) * factor + mean; });
    job.Reached(5);
    ApplyTable(job, table);
}

void StretchRange(Job& job) {
    Extremes found;
    for (int y = 0; y < job.Height(); ++y) {
        FindExtremes(job.Row(y), job.Width(), found);
        job.RowDone(y, 10);
    }
    std::array<ByteTable, 3> tables;
    for (std::size_t c = 0; c < tables.size(); ++c) {
        const int least = found.least[c];
        const int span = found.greatest[c] - least;
        if (span == 0)
            job.Refuse("cannot stretch a channel that is " + std::to_string(least) +
                       " in every pixel");
        tables[c] = TableOf([&](int i) { return (i - least) * 255.0 / span; });
    }
    ApplyTables(job, tables);
}

void Saturate(Job& job) {
    const double factor = job.Level() / 100.0;
    for (int y = 0; y < job.Height(); ++y) {
        SaturateRow(job.Row(y), job.Width(), factor);
        job.RowDone(y);
    }
}

void Gamma(Job& job) {
    if (job.Level() < 1)
        job.RefuseLevel("from 1");
    const double power = 1 / (job.Level() / 100.0);
    ApplyTable(job, TableOf([&](int i) { return 255 * std::pow(i / 255.0, power); }));
}

}  // namespace quillbrand::mFilterG
