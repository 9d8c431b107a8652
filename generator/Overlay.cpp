#include "generator/Overlay.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <string>

#include "base/Fault.h"
#include "base/Numbers.h"
#include "base/Stdio.h"
#include "base/VectorClones.h"
#include "generator/GeneratorSettings.h"
#include "terrain/HeightWriter.h"

namespace quillbrand {

namespace {

constexpr double lowest32 = -2147483648.0;
constexpr double highest32 = 2147483647.0;

/// What the modes make of an old height and p, the new one times its percentage.
struct Added {
    double operator()(double old, double p) const { return old + p; }
};
struct Subtracted {
    double operator()(double old, double p) const { return old - p; }
};
struct Multiplied {
    double operator()(double old, double p) const { return old * p; }
};
struct Divided {
    double operator()(double old, double p) const { return old / (p + 1.0); }
};
struct Larger {
    double operator()(double old, double p) const { return p > old ? p : old; }
};
struct Smaller {
    double operator()(double old, double p) const { return p < old ? p : old; }
};

/// One row, in place; false when a result does not fit into 32 bits. Inlined into a version for
/// each mode and each kind of processor.
template <typename Mode>
[[gnu::always_inline]] inline bool CombineRow(Height* __restrict row,
                                              const std::int32_t* __restrict relief, int count,
                                              double factor, Mode mode) {
    std::int64_t outside = 0;
    for (int i = 0; i < count; ++i) {
        const double z = std::rint(mode(row[i], factor * relief[i]));
        const double below = z < highest32 ? z : highest32;
        const double limited = below > lowest32 ? below : lowest32;
        // What is no number at all, after a division by zero, differs too.
        outside |= limited != z ? -1 : 0;
        row[i] = static_cast<Height>(limited);
    }
    return outside == 0;
}

QB_VECTOR_CLONES bool AddRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Added());
}
QB_VECTOR_CLONES bool SubtractRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Subtracted());
}
QB_VECTOR_CLONES bool MultiplyRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Multiplied());
}
QB_VECTOR_CLONES bool DivideRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Divided());
}
QB_VECTOR_CLONES bool HighestRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Larger());
}
QB_VECTOR_CLONES bool LowestRow(Height* row, const std::int32_t* relief, int count, double f) {
    return CombineRow(row, relief, count, f, Smaller());
}

using RowFunction = bool (*)(Height*, const std::int32_t*, int, double);

/// Null for a mode that leaves the terrain as it is.
RowFunction FunctionOf(int mode) {
    switch (mode) {
        case ModifyModes::none:
        case ModifyModes::Add:
            return AddRow;
        case ModifyModes::Subtraction:
            return SubtractRow;
        case ModifyModes::Multiplication:
            return MultiplyRow;
        case ModifyModes::Division:
            return DivideRow;
        case ModifyModes::highest:
            return HighestRow;
        case ModifyModes::lowest:
            return LowestRow;
        default:
            return nullptr;
    }
}

[[noreturn]] void ReportRow(int y, int mode, const std::int32_t* relief, int count, double factor) {
    const std::string row = " in row " + std::to_string(y);
    const bool byZero = std::any_of(relief, relief + count,
                                    [factor](std::int32_t z) { return factor * z + 1.0 == 0; });
    if (mode == ModifyModes::Division && byZero)
        throw Fault("division by zero while the terrains are divided" + row);
    throw Fault("overflow: a combined height" + row + " does not fit into 32 bits");
}

/// The preview's own formulas, which multiply by the percentage before they divide it by 100.
double CombinePreview(double t, double p, double h, int mode) {
    switch (mode) {
        case ModifyModes::Add:
            return t + h * p / 100;
        case ModifyModes::Subtraction:
            return t - h * p / 100;
        case ModifyModes::Multiplication:
            return h * (p * t) / 100;
        case ModifyModes::Division: {
            const double divisor = 1 + h * p / 100;
            if (divisor == 0)
                throw Fault("division by zero while the terrains are divided");
            return t / divisor;
        }
        case ModifyModes::highest:
            return STDIO::MaxValue(t, h / 100 * p);
        case ModifyModes::lowest:
            return STDIO::MinValue(t, h / 100 * p);
        default:
            return p;
    }
}

}  // namespace

void OverlayRelief(clsTerrain& terrain, const SquareArray& relief, int size, int height, int mode,
                   Host& host) {
    const RowFunction combine = FunctionOf(mode);
    if (combine == nullptr)
        return;
    const int last = std::min(size + 1, terrain.Size() + 2);
    assert(relief.Upper() >= last);
    const double factor = height / 100.0;
    HeightWriter writer(terrain, {0, 0, last, last});
    for (int y = 0; y <= last; ++y) {
        if (!combine(writer.Row(y).data(), relief.Row(y), last + 1, factor))
            ReportRow(y, mode, relief.Row(y), last + 1, factor);
        host.Progress(PercentOf(y, size));
        host.Yield();
    }
}

void OverlayPreview(clsTerrain& preview, const clsTerrain& current, int height, int mode) {
    assert(preview.Size() > 0);
    const double ratio = double(current.Size()) / preview.Size();
    for (int y = 1; y <= preview.Size(); ++y) {
        for (int x = 1; x <= preview.Size(); ++x) {
            const double t = current.GetPoint(RoundTo32(ratio * x), RoundTo32(ratio * y));
            const double p = preview.GetPoint(x, y);
            preview.SetPoint(x, y, RoundTo32(CombinePreview(t, p, height, mode)));
        }
    }
}

}  // namespace quillbrand
