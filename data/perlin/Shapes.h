#pragma once

#include <libnoise/noise.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace quillbrand::perlin {

using noise::module::Module;

/// Base of the modules below: one source, coordinates in pixels.
class Shape : public Module {
  public:
    explicit Shape(const Module& source) : Module(1) { SetSourceModule(0, source); }
    int GetSourceModuleCount() const override { return 1; }

  protected:
    double Source(double x, double y, double z) const {
        return m_pSourceModule[0]->GetValue(x, y, z);
    }
};

/// The source, with its last values kept for a raster walk row by row: asking for a point, its
/// right and its lower neighbour at every pixel costs one source value a pixel in place of three.
class Remembered : public Shape {
  public:
    explicit Remembered(const Module& source) : Shape(source), slots_(2 * keptColumns) {}
    double GetValue(double x, double y, double z) const override;

  private:
    struct Slot {
        double x = std::numeric_limits<double>::quiet_NaN();
        double y = 0.0;
        double z = 0.0;
        double value = 0.0;
    };
    static constexpr std::size_t keptColumns = 4096;

    mutable std::vector<Slot> slots_;
};

/// The source's heights through a smooth curve that runs through the given points without
/// overshooting, and goes on straight before the first and after the last.
class Profile : public Shape {
  public:
    struct Knot {
        double height;
        double newHeight;
    };

    /// Requires: at least two knots, rising in `height`.
    Profile(const Module& source, std::vector<Knot> knots);
    double GetValue(double x, double y, double z) const override;

  private:
    std::vector<Knot> knots_;
    std::vector<double> slopes_;
};

/// Steps of equal height cut into the source, like beds of hard and soft rock.
class Terraces : public Shape {
  public:
    /// `step` is the height of a step; a `flat` of 0 leaves the source as it is, towards 1 the
    /// treads get level and the risers steep.
    Terraces(const Module& source, double step, double flat)
        : Shape(source), step_(step), flat_(flat) {}
    double GetValue(double x, double y, double z) const override;

  private:
    double step_;
    double flat_;
};

/// Spurs and gullies that run down the slopes of the source and branch: waves side by side, each
/// finer set following the slopes that the coarser ones have made. Level ground stays as it is.
/// Asks its source for three points at each of its own.
class Gullies : public Shape {
  public:
    struct Cut {
        double spacing;       ///< pixels from gully to gully in the coarsest set
        double depth;         ///< height of its spurs
        double steep;         ///< rise over one pixel from where the gullies have half that depth
        double gain = 0.5;    ///< depth of each next, half as wide set against the one before
        double finest = 7.0;  ///< no set narrower than this many pixels
    };

    Gullies(const Module& source, const Cut& cut, int seed)
        : Shape(source), cut_(cut), seed_(seed) {}
    double GetValue(double x, double y, double z) const override;

  private:
    Cut cut_;
    int seed_;
};

/// The source leaning with the wind, which blows along x: crests move forward by up to `lean`
/// pixels, so that backs are long and fronts short.
class Leaning : public Shape {
  public:
    Leaning(const Module& source, double lean) : Shape(source), lean_(lean) {}
    double GetValue(double x, double y, double z) const override;

  private:
    double lean_;
};

/// Volcanoes scattered over a plain: concave cones of unlike sizes, most with a crater. The source
/// (about -1..1) frays their rims and flanks; it is not part of the height. 0 on the plain, up
/// to 1 on the highest rim.
class Volcanoes : public Shape {
  public:
    /// `spacing` is the mean distance of two volcanoes in pixels, `crater` the radius of a crater
    /// against that of its cone, 0..1.
    Volcanoes(const Module& source, double spacing, double crater, int seed)
        : Shape(source), spacing_(spacing), crater_(crater), seed_(seed) {}
    double GetValue(double x, double y, double z) const override;

  private:
    double spacing_;
    double crater_;
    int seed_;
};

/// Crust broken into blocks, each lifted and tilted in its own way. The source (about -1..1) bends
/// the lines of breakage; it is not part of the height. About -1..1.
class Blocks : public Shape {
  public:
    /// `reach` is how far the source moves the lines and `spacing` the mean width of a block, in
    /// pixels; `cliff` is how gentle the slope between two blocks is, about its width as a part of
    /// the spacing.
    Blocks(const Module& source, double reach, double spacing, double cliff, int seed)
        : Shape(source), reach_(reach), spacing_(spacing), cliff_(cliff), seed_(seed) {}
    double GetValue(double x, double y, double z) const override;

  private:
    double reach_;
    double spacing_;
    double cliff_;
    int seed_;
};

}  // namespace quillbrand::perlin
