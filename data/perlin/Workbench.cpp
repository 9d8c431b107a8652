#include "data/perlin/Workbench.h"

#include <algorithm>
#include <cmath>

namespace quillbrand::perlin {

namespace {

/// Not a whole number, so that the lattices of the octaves do not meet in the same points.
constexpr double lacunarity = 2.07;

/// Octaves from `size` down to the finest wave, at least one.
int OctavesFrom(double size, double finest) {
    const double count = 1.0 + std::floor(std::log(size / finest) / std::log(lacunarity));
    return static_cast<int>(std::clamp(count, 1.0, 10.0));
}

}  // namespace

int Workbench::NextSeed() {
    constexpr std::int64_t apart = 7919;  // more than a noise has octaves, each with its own seed
    return static_cast<int>(++place_ * apart % 2147483647);
}

/// Cuts the picture obliquely through the noise: gradient noise is 0 in all points of its lattice,
/// and a plane along the lattice would show that as a grid.
template <typename Noise>
const Module& Workbench::Placed(Noise& source, double size, int octaves) {
    const int seed = NextSeed();
    source.SetFrequency(1.0 / size);
    source.SetLacunarity(lacunarity);
    source.SetNoiseQuality(noise::QUALITY_BEST);
    source.SetOctaveCount(octaves);
    source.SetSeed(seed);
    auto& moved = Make<noise::module::TranslatePoint>();
    moved.SetSourceModule(0, source);
    moved.SetTranslation(size * (seed % 1009 + 0.31), size * (seed % 877 + 0.73),
                         size * (seed % 613 + 0.47));
    auto& turned = Make<noise::module::RotatePoint>();
    turned.SetSourceModule(0, moved);
    turned.SetAngles(33.0 + seed % 7, 27.0 + seed % 5, seed % 360);
    return turned;
}

const Module& Workbench::Fractal(double size, double gain, double finest) {
    auto& source = Make<noise::module::Perlin>();
    source.SetPersistence(gain);
    return Placed(source, size, OctavesFrom(size, finest));
}

const Module& Workbench::Swell(double size) {
    return Placed(Make<noise::module::Perlin>(), size, 1);
}

const Module& Workbench::Billows(double size, double gain, double finest) {
    auto& source = Make<noise::module::Billow>();
    source.SetPersistence(gain);
    return Placed(source, size, OctavesFrom(size, finest));
}

const Module& Workbench::Warped(const Module& source, double size, double reach) {
    const Module& alongX = Scaled(Swell(size), reach);
    const Module& alongY = Scaled(Swell(size), reach);
    auto& warped = Make<noise::module::Displace>();
    warped.SetSourceModule(0, source);
    warped.SetDisplaceModules(alongX, alongY, Make<noise::module::Const>());
    return warped;
}

const Module& Workbench::Turned(const Module& source, double degrees) {
    auto& turned = Make<noise::module::RotatePoint>();
    turned.SetSourceModule(0, source);
    turned.SetAngles(0.0, 0.0, degrees);
    return turned;
}

const Module& Workbench::Stretched(const Module& source, double times) {
    auto& stretched = Make<noise::module::ScalePoint>();
    stretched.SetSourceModule(0, source);
    stretched.SetScale(1.0, 1.0 / times, 1.0);
    return stretched;
}

const Module& Workbench::Scaled(const Module& source, double scale, double bias) {
    auto& scaled = Make<noise::module::ScaleBias>();
    scaled.SetSourceModule(0, source);
    scaled.SetScale(scale);
    scaled.SetBias(bias);
    return scaled;
}

const Module& Workbench::Sum(const Module& a, const Module& b) {
    auto& sum = Make<noise::module::Add>();
    sum.SetSourceModule(0, a);
    sum.SetSourceModule(1, b);
    return sum;
}

const Module& Workbench::Product(const Module& a, const Module& b) {
    auto& product = Make<noise::module::Multiply>();
    product.SetSourceModule(0, a);
    product.SetSourceModule(1, b);
    return product;
}

const Module& Workbench::Profiled(const Module& source, std::vector<Profile::Knot> knots) {
    return Make<Profile>(source, std::move(knots));
}

const Module& Workbench::Terraced(const Module& source, double step, double flat) {
    return Make<Terraces>(source, step, flat);
}

const Module& Workbench::Carved(const Module& source, const Gullies::Cut& cut) {
    return Make<Gullies>(Make<Remembered>(source), cut, NextSeed());
}

const Module& Workbench::Leant(const Module& source, double lean) {
    return Make<Leaning>(source, lean);
}

const Module& Workbench::Cones(const Module& fray, double spacing, double crater) {
    return Make<Volcanoes>(fray, spacing, crater, NextSeed());
}

const Module& Workbench::Broken(const Module& bend, double reach, double spacing, double cliff) {
    return Make<Blocks>(bend, reach, spacing, cliff, NextSeed());
}

}  // namespace quillbrand::perlin
