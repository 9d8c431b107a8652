#pragma once

#include <cassert>
#include <cstddef>
#include <vector>

namespace quillbrand {

/// The bell over the rectangle with the corner (ox, oy) and the sides w, h, at the point (px, py).
/// It is centred, its standard deviation is an eighth of the side, its peak is 0.36.
/// The weight is the product of GaussBell(px, ox, w), 0.3, 0.3, GaussBell(py, oy, h) and 4, taken
/// in that order in double floats.
float GaussWeight(double px, double py, double ox, double oy, double w, double h);

/// The bell along one side from `o` on, before its height: 1 in the middle.
double GaussBell(double p, double o, double side);

/// The bell on a square of points, made once, for whoever needs it often.
class GaussTable {
  public:
    /// What the program starts with.
    static constexpr int standardUpper = 512;

    /// No points at all.
    GaussTable() = default;

    /// The bell over the points 0..n in both directions (`BuildGaussTable`). Requires: n > 0.
    explicit GaussTable(int n);

    /// `depth` times the bell over the rectangle, read from the nearest place of the table. Throws
    /// Fault for a point outside the rectangle.
    float Weight(double x, double y, double ox, double oy, double w, double h, double depth) const;

    /// Requires: 0 <= i, j <= n.
    float At(int i, int j) const {
        assert(i >= 0 && i <= upper_ && j >= 0 && j <= upper_);
        return weights_[static_cast<std::size_t>(i) * static_cast<std::size_t>(upper_ + 1) +
                        static_cast<std::size_t>(j)];
    }

  private:
    int upper_ = -1;
    std::vector<float> weights_;
};

}  // namespace quillbrand
