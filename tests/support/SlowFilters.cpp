#include "tests/support/SlowFilters.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace quillbrand::SlowTwins {

namespace {

/// Channels 1 (blue) to 3, columns and rows from 1. P is what becomes of the picture, S what it
/// was.
class Run {
  public:
    Run(Picture& picture, int level, RandomSource& chance)
        : picture_(picture), p(level), chance_(chance) {
        std::int64_t total = 0;
        for (int y = 1; y <= H; ++y)
            for (int x = 1; x <= W; ++x) {
                total += Grey(x, y);
                for (int c = 1; c <= 3; ++c) {
                    least_[c] = std::min(least_[c], Read(S, c, x, y));
                    greatest_[c] = std::max(greatest_[c], Read(S, c, x, y));
                }
            }
        mean_ = static_cast<int>(total / (std::int64_t{W} * H));
    }

    /// What the channel becomes, before it is limited.
    double NewValue(int id, int c, int x, int y);
    void Point(int id, int x, int y);
    void Diffuse(int x, int y);
    void DiffuseErrors(int id, int x, int y);

  private:
    static int Read(const Picture& raster, int c, int x, int y) {
        return raster.Point(x - 1, y - 1) >> (24 - 8 * c) & 255;
    }
    static void Write(Picture& raster, int c, int x, int y, int value) {
        QRgb& pixel = raster.Row(y - 1)[x - 1];
        pixel = (pixel & ~(255u << (8 * c - 8))) | static_cast<QRgb>(value) << (8 * c - 8);
    }
    int Grey(int x, int y) const {
        return (Read(S, 1, x, y) + Read(S, 2, x, y) + Read(S, 3, x, y)) / 3;
    }
    int OfLevel(int c) const {
        return static_cast<int>(c == 3 ? p % 256 : p >> (c == 2 ? 8 : 16) & 255);
    }
    int BestMean(int c, int x, int y) const;

    Picture& picture_;
    Picture& P = picture_;
    Picture S = picture_;
    int W = S.Width();
    int H = S.Height();
    std::int64_t p;
    RandomSource& chance_;
    int mean_;
    int least_[4] = {255, 255, 255, 255};
    int greatest_[4] = {};
};

int Run::BestMean(int c, int x, int y) const {
    int best = 99999;
    int result = 0;
    for (const auto& [left, top] : {std::pair(x - 2, y - 2), {x, y - 2}, {x - 2, y}, {x, y}}) {
        int mean = 0;
        for (int i = 0; i < 9; ++i)
            mean += Read(S, c, left + i % 3, top + i / 3);
        mean /= 9;
        int spread = 0;
        for (int i = 0; i < 9; ++i)
            spread += std::abs(Read(S, c, left + i % 3, top + i / 3) - mean);
        if (spread < best) {
            best = spread;
            result = mean;
        }
    }
    return result;
}

// One rule a number, as plain as can be.  NOLINTNEXTLINE(readability-function-size)
double Run::NewValue(int id, int c, int x, int y) {
    const Picture& source = id == 1 || id == 3 || id == 5 || id == 6 ? P : S;
    const auto v = [&](int dx, int dy) {
        const bool inside = x + dx >= 1 && x + dx <= W && y + dy >= 1 && y + dy <= H;
        return inside ? Read(source, c, x + dx, y + dy) : mean_;
    };
    std::vector<int> nine;
    std::int64_t sum8 = -v(0, 0);
    for (int i = 0; i < 9; ++i) {
        nine.push_back(v(i % 3 - 1, i / 3 - 1));
        sum8 += nine.back();
    }
    constexpr int matrix[4][4] = {{1, 9, 3, 11}, {13, 5, 15, 7}, {4, 12, 2, 10}, {16, 8, 14, 6}};
    const std::string orders[] = {"bgr", "gbr", "brg", "rbg", "grb", "rgb"};  // of 1-based c
    const int C = v(0, 0);
    const int offset = OfLevel(c);
    const int columns = v(-1, -1) - v(1, -1) + v(-1, 0) - v(1, 0) + v(-1, 1) - v(1, 1);
    // Quotients here are the whole parts.
    const auto whole = [](std::int64_t number) { return static_cast<double>(number); };
    const auto each = [&](auto test) { return test(1) && test(2) && test(3); };
    switch (id) {
        case 1:
            return whole(((p + 24) * C - 2 * sum8) / (p + 8));
        case 2:
            return 255 - C;
        case 3:
            return whole(sum8 >> 3);
        case 5:
            return whole((C + v(-1, 0) + v(1, 0) + v(0, -1) + v(0, 1)) / 5);
        case 6:
            return whole(((p + 9) * C - sum8) / (p + 1));
        case 7:
            return double(8 * C - sum8 + offset);
        case 8:
            return std::abs(C - v(1, 1) + offset);
        case 9:
            return columns + offset;
        case 10:
            return std::abs(v(1, 1) - C + offset);
        case 11:
            return -columns + offset;
        case 12:
            return Grey(x, y);
        case 13:
            return whole(
                (2 * v(-1, -1) + v(0, -1) + v(-1, 0) - v(1, 0) - v(0, 1) - 2 * v(1, 1)) / 2 + 50);
        case 14:
            return std::nearbyint(double(C * (p + 100)) / 100);
        case 15:
            return Read(S, c, int((x - 1) / p * p) + 1, int((y - 1) / p * p) + 1);
        case 16: {
            const char from = orders[p < 1 || p > 5 ? 0 : p][static_cast<std::size_t>(c) - 1];
            return Read(S, from == 'b' ? 1 : from == 'g' ? 2 : 3, x, y);
        }
        case 17: {
            const auto f = static_cast<float>(double(p + 100) / 100.0);
            return std::nearbyint((C - mean_) * double{f} + mean_);
        }
        case 18:
            return each([&](int i) { return Read(S, i, x, y) < OfLevel(i); }) ? 0 : 255;
        case 19:
            return whole((10 * C - sum8) / 2);
        case 20:
            return Grey(x, y) / 16 + 1 > matrix[(y - 1) % 4][(x - 1) % 4] ? 255 : 0;
        case 24:
            return BestMean(c, x, y);
        case 25:
            return *std::max_element(nine.begin(), nine.end());
        case 28:
            return std::nearbyint((C - least_[c]) * 255.0 / (greatest_[c] - least_[c]));
        case 29:
            return std::nearbyint(chance_.Uniform() * double(2 * p + 1) - double(p) + C);
        case 30:
            return std::nearbyint(double(p) / 100 * (C - Grey(x, y)) + C);
        case 31:
            return std::nearbyint(255 * std::pow(C / 255.0, 1 / (double(p) / 100)));
        case 32:
            return each([&](int i) { return Read(S, i, x, y) > p; }) ? 255 : 0;
        default:
            return *std::min_element(nine.begin(), nine.end());  // 26, 27
    }
}

void Run::Diffuse(int x, int y) {
    const double half = std::nearbyint(double(p) / 2);
    double dx = std::nearbyint(chance_.Uniform() * double(p) - half);
    double dy = std::nearbyint(chance_.Uniform() * double(p) - half);
    if (x + dx < 1 || x + dx > W)
        dx = 0;
    if (y + dy < 1 || y + dy > H)
        dy = 0;
    for (int c = 1; c <= 3; ++c)
        Write(P, c, x, y, Read(P, c, x + int(dx), y + int(dy)));
}

void Run::DiffuseErrors(int id, int x, int y) {
    struct Share {
        int dx, dy, part;
    };
    static const std::vector<Share> shares[] = {
        {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}},
        {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4}, {2, 1, 2}},
        {{1, 0, 8},
         {2, 0, 4},
         {-2, 1, 2},
         {-1, 1, 4},
         {0, 1, 8},
         {1, 1, 4},
         {2, 1, 2},
         {-2, 2, 1},
         {-1, 2, 2},
         {0, 2, 4},
         {1, 2, 2},
         {2, 2, 1}}};
    const int whole = id == 21 ? 16 : id == 22 ? 32 : 42;
    for (int c = 1; c <= 3; ++c) {
        const int result = Read(S, c, x, y) > p ? 255 : 0;
        const int error = Read(S, c, x, y) - result;
        Write(P, c, x, y, result);
        for (const auto& [dx, dy, part] : shares[id - 21])
            if (x + dx >= 1 && x + dx <= W && y + dy <= H)
                Write(S, c, x + dx, y + dy,
                      std::clamp(Read(S, c, x + dx, y + dy) + error * part / whole, 0, 255));
    }
}

void Run::Point(int id, int x, int y) {
    const bool isTwoPoint = id == 8 || id == 10;
    const bool isThreeByThree =
        (id >= 1 && id <= 13 && id % 2 == 1) || id == 6 || (id >= 25 && id <= 27);
    const int ring = id == 24 ? 2 : isThreeByThree ? 1 : 0;
    const int after = isTwoPoint ? 1 : ring;
    if (x <= ring || y <= ring || x > W - after || y > H - after)
        return;
    for (int c = 1; c <= 3; ++c)
        Write(P, c, x, y, static_cast<int>(std::clamp(NewValue(id, c, x, y), 0.0, 255.0)));
}

}  // namespace

void ApplyPictureFilter(int id, Picture& picture, int level, RandomSource& chance) {
    Run run(picture, level, chance);
    for (int y = 1; y <= picture.Height(); ++y)
        for (int x = 1; x <= picture.Width(); ++x) {
            if (id == 4)
                run.Diffuse(x, y);
            else if (id >= 21 && id <= 23)
                run.DiffuseErrors(id, x, y);
            else
                run.Point(id, x, y);
        }
}

}  // namespace quillbrand::SlowTwins
