#include "editor/ZView.h"

#include <cassert>

#include "base/Canvas.h"
#include "editor/View.h"

namespace quillbrand {

namespace {

constexpr Colour sky = ColourOf(0xE9, 0xEF, 0xF5);
constexpr Colour ground = ColourOf(0, 0, 0);

/// The height of a section's point in its drawing units, above the picture's lower edge.
double HeightAt(clsTerrain& terrain, int x, int y, bool real) {
    if (!real)
        return static_cast<double>(terrain.GetPointH(x, y));
    const double metres = terrain.ScaleT();
    return terrain.GetPointTU(x, y) * metres - metres * terrain.MinTU();
}

}  // namespace

double SectionRange(const clsTerrain& terrain, const Section& section, const Picture& picture) {
    if (section.real)
        return double{terrain.ScaleT()} * terrain.Size() * picture.Height() / picture.Width();
    return double(terrain.max()) - terrain.min();
}

void DrawSection(Picture& picture, clsTerrain& terrain, const Section& section, double range) {
    assert(range != 0 && section.position >= 0 && section.position <= terrain.Size());
    Canvas canvas(picture);
    canvas.Clear(sky);
    canvas.Scale(0, 0, terrain.Size(), range);
    canvas.DrawWidth(LineWidth(picture.Width(), terrain.Size()));
    for (int i = 1; i <= terrain.Size(); ++i) {
        const int x = section.alongX ? i : section.position;
        const int y = section.alongX ? section.position : i;
        canvas.Line(i, range, i, range - HeightAt(terrain, x, y, section.real), ground);
    }
}

}  // namespace quillbrand
