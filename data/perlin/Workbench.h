#pragma once

#include <libnoise/noise.h>

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "data/perlin/Shapes.h"

namespace quillbrand::perlin {

/// Smaller waves than this many pixels would only show as facets once the terrain is enlarged.
constexpr double finestWave = 6.0;

/// Where a recipe gets its building blocks from. Coordinates are pixels of the picture, so every
/// size is a width in pixels. The workbench owns all that it hands out; a module lives as long as
/// its workbench.
///
/// Each block made from noise reads a place of the noise of its own, far from all others. The
/// place follows from the workbench's first place and the order of the calls alone, so the same
/// recipe gives the same heights on every run. For that, let no two blocks of noise be made within
/// one list of arguments: their order would be the compiler's choice.
class Workbench {
  public:
    /// Begins at `firstPlace` in the noise and takes up the hundred places from there; `feature` is
    /// the width in pixels of this picture's features.
    Workbench(std::int64_t firstPlace, double feature) : feature_(feature), place_(firstPlace) {}

    /// Width of what the set calls its feature: a hill, a massif, a plateau ...
    double Feature() const { return feature_; }

    /// Hills of that size with ever smaller ones on them, down to `finest` pixels, about -1..1. A
    /// lower gain is smoother.
    const Module& Fractal(double size, double gain = 0.45, double finest = finestWave);
    /// One smooth octave, about -1..1.
    const Module& Swell(double size);
    /// Rounded cushions parted by sharp clefts, about -1..1.
    const Module& Billows(double size, double gain, double finest);

    /// `source` bent: every point is moved by up to `reach` pixels, by a swell of that size.
    const Module& Warped(const Module& source, double size, double reach);
    /// `source` turned clockwise about the picture's corner.
    const Module& Turned(const Module& source, double degrees);
    /// `source` made so many times as long from top to bottom.
    const Module& Stretched(const Module& source, double times);

    /// source * scale + bias.
    const Module& Scaled(const Module& source, double scale, double bias = 0.0);
    const Module& Sum(const Module& a, const Module& b);
    const Module& Product(const Module& a, const Module& b);

    /// The shapes of our own; see the classes.
    const Module& Profiled(const Module& source, std::vector<Profile::Knot> knots);
    const Module& Terraced(const Module& source, double step, double flat);
    const Module& Carved(const Module& source, const Gullies::Cut& cut);
    const Module& Leant(const Module& source, double lean);
    const Module& Cones(const Module& fray, double spacing, double crater);
    const Module& Broken(const Module& bend, double reach, double spacing, double cliff);

  private:
    template <typename M, typename... Arguments>
    M& Make(Arguments&&... arguments) {
        auto module = std::make_unique<M>(std::forward<Arguments>(arguments)...);
        M& made = *module;
        modules_.push_back(std::move(module));
        return made;
    }

    template <typename Noise>
    const Module& Placed(Noise& source, double size, int octaves);
    int NextSeed();

    double feature_;
    std::int64_t place_;
    std::vector<std::unique_ptr<Module>> modules_;
};

}  // namespace quillbrand::perlin
