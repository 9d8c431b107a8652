#include "effects/Gauss.h"

#include <cmath>

#include "base/Fault.h"
#include "base/NumberText.h"
#include "base/Numbers.h"

namespace quillbrand {

namespace {

float Weigh(double gx, double gy) {
    return static_cast<float>(gx * 0.3 * 0.3 * gy * 4.0);
}

}  // namespace

double GaussBell(double p, double o, double side) {
    const double a = ((p - o) - side / 2) / (side / 8);
    return std::exp(-(a * a) / 2);
}

float GaussWeight(double px, double py, double ox, double oy, double w, double h) {
    return Weigh(GaussBell(px, ox, w), GaussBell(py, oy, h));
}

/// Both sides share one row of bells: the same numbers as from GaussWeight, with fewer
/// exponentials.
GaussTable::GaussTable(int n) : upper_(n) {
    assert(n > 0);
    std::vector<double> bells;
    for (int i = 0; i <= n; ++i)
        bells.push_back(GaussBell(i, 0, n));
    weights_.reserve(bells.size() * bells.size());
    for (const double gx : bells)
        for (const double gy : bells)
            weights_.push_back(Weigh(gx, gy));
}

float GaussTable::Weight(double x, double y, double ox, double oy, double w, double h,
                         double depth) const {
    const double i = RoundHalfEven((x - ox) * (upper_ / w));
    const double j = RoundHalfEven((y - oy) * static_cast<float>(upper_ / h));
    if (!(i >= 0 && i <= upper_ && j >= 0 && j <= upper_))
        throw Fault("the point " + ShortestText(x) + ", " + ShortestText(y) +
                    " lies outside the bell");
    return static_cast<float>(depth * At(static_cast<int>(i), static_cast<int>(j)));
}

}  // namespace quillbrand
