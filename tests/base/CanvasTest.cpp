#include "base/Canvas.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/Numbers.h"
#include "base/RandomSource.h"
#include "tests/support/SlowCanvas.h"

namespace quillbrand {
namespace {

constexpr Colour white = 0xffffff;

int AnyOf(int low, int high, RandomSource& chance) {
    return low + static_cast<int>(chance.Uniform() * (high - low + 1));
}

Picture RandomPicture(int width, int height, RandomSource& chance) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.Row(y)[x] = PixelOf(AnyOf(0, white, chance));
    return picture;
}

/// The smallest rectangle around the pixels in which two pictures of one size differ.
QRect Difference(const Picture& one, const Picture& other) {
    QRect around;
    for (int y = 0; y < one.Height(); ++y)
        for (int x = 0; x < one.Width(); ++x)
            if (one.Row(y)[x] != other.Row(y)[x])
                around |= QRect(x, y, 1, 1);
    return around;
}

/// What `draw` leaves on a black picture of `side` pixels: "#" is white, "+" another colour.
template <typename Draw>
std::string Drawn(int side, Draw draw) {
    Picture picture(side, side);
    Canvas canvas(picture);
    canvas.Clear(0);
    canvas.ForeColour(white);
    canvas.FillColour(0x123456);
    draw(canvas);
    std::string rows;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            rows += picture.Point(x, y) == 0 ? '.' : picture.Point(x, y) == white ? '#' : '+';
        rows += ' ';
    }
    rows.pop_back();
    return rows;
}

/// Some shape, drawn fast and slow; the fast one's rectangle.
QRect DrawAnything(Picture& fast, Picture& slow, const SlowTwins::Pen& pen, RandomSource& chance) {
    const auto place = [&] { return QPoint(AnyOf(-8, 24, chance), AnyOf(-8, 24, chance)); };
    Canvas canvas(fast);
    canvas.DrawWidth(pen.width);
    canvas.Mode(pen.mode);
    canvas.Fill(pen.fill ? FillStyle::Solid : FillStyle::Transparent);
    canvas.FillColour(pen.fill.value_or(0));
    const QPoint a = place();
    const QPoint b = place();
    const double radius = AnyOf(-1, 40, chance) / 4.0;
    std::vector<QPoint> points(std::size_t(AnyOf(0, 7, chance)));
    std::generate(points.begin(), points.end(), place);
    switch (AnyOf(0, 4, chance)) {
        case 0:
            SlowTwins::DrawLine(slow, a, b, pen);
            return canvas.Line(a.x(), a.y(), b.x(), b.y(), pen.colour);
        case 1:
            SlowTwins::DrawBox(slow, a, b, pen);
            return canvas.Box(a.x(), a.y(), b.x(), b.y(), pen.colour);
        case 2: {
            const double aspect = AnyOf(0, 8, chance) / 4.0;
            if (radius >= 0)
                SlowTwins::DrawEllipse(slow, a, RoundTo32(radius / std::max(aspect, 1.0)),
                                       RoundTo32(radius * std::min(aspect, 1.0)), pen);
            return canvas.Circle(a.x(), a.y(), radius, pen.colour, aspect);
        }
        case 3:
            SlowTwins::DrawPolygon(slow, {&a, 1}, pen);
            return canvas.Point(a.x(), a.y(), pen.colour);
        default:
            SlowTwins::DrawPolygon(slow, points, pen);
            return canvas.Polygon(std::vector<QPointF>(points.begin(), points.end()), pen.colour);
    }
}

TEST(Canvas, DrawsWhatItsSlowTwinsDrawAndTellsWhere) {
    RandomSource chance(1);
    for (int round = 0; round < 1500; ++round) {
        const Picture before = RandomPicture(AnyOf(1, 18, chance), AnyOf(1, 18, chance), chance);
        const SlowTwins::Pen pen{
            .width = round % 3 == 0 ? AnyOf(1, 6, chance) : 1,
            .mode = static_cast<DrawMode>(AnyOf(0, 2, chance)),
            .colour = AnyOf(0, white, chance),
            .fill = round % 2 == 0 ? std::optional<Colour>(round) : std::nullopt};
        Picture fast = before;
        Picture slow = before;
        const QRect touched = DrawAnything(fast, slow, pen, chance);
        ASSERT_EQ(Difference(fast, slow), QRect()) << "round " << round << " width " << pen.width;
        const QRect changed = Difference(before, fast);
        if (pen.mode == DrawMode::Invert)
            ASSERT_EQ(touched, changed) << "round " << round;
        else
            ASSERT_TRUE(touched.contains(changed) || changed.isNull()) << "round " << round;
    }
}

TEST(Canvas, IncludesTheEndsOfLinesOfEveryWidth) {
    EXPECT_EQ(Drawn(5, [](Canvas& c) { c.Line(1, 1, 3, 3); }), "..... .#... ..#.. ...#. .....");
    const auto line = [](int width, int x1, int y1, int x2, int y2) {
        return Drawn(5, [=](Canvas& c) {
            c.DrawWidth(width);
            c.Line(x1, y1, x2, y2);
        });
    };
    EXPECT_EQ(line(2, 2, 3, 2, 1), "..... .##.. .##.. .##.. .....");
    EXPECT_EQ(line(3, 2, 3, 2, 1), "..... .###. .###. .###. .....");
    EXPECT_EQ(line(-7, 2, 3, 2, 1), "..... ..#.. ..#.. ..#.. .....") << "as a width of 1";
    EXPECT_EQ(line(3, 1, 3, 4, 2), "..... ...## .#### .#### .##..");
    EXPECT_EQ(line(2, 1, 1, 3, 3), "..... ##... .##.. ..##. .....");
    EXPECT_EQ(line(3, 2, 2, 2, 2), "..... ..... .###. ..... .....");
}

TEST(Canvas, DrawsCirclesAndBoxesAroundTheirFilling) {
    const auto filled = [](auto shape) {
        return Drawn(7, [=](Canvas& c) {
            c.Fill(FillStyle::Solid);
            shape(c);
        });
    };
    EXPECT_EQ(filled([](Canvas& c) { c.Circle(3, 3, 3); }),
              "..###.. .#+++#. #+++++# #+++++# #+++++# .#+++#. ..###..");
    EXPECT_EQ(filled([](Canvas& c) { c.Circle(3, 3, 2.6, noColour, 0.4); }),
              "....... ....... .#####. #+++++# .#####. ....... .......");
    EXPECT_EQ(filled([](Canvas& c) { c.Box(5, 4, 1, 1); }),
              "....... .#####. .#+++#. .#+++#. .#####. ....... .......");
    EXPECT_EQ(filled([](Canvas& c) { c.FilledBox(2, 2, 4, 5); }),
              "....... ....... ..###.. ..###.. ..###.. ..###.. .......");
    EXPECT_EQ(filled([](Canvas& c) { c.Circle(3, 3, 0); }),
              "....... ....... ....... ...#... ....... ....... .......");
}

TEST(Canvas, PutsWholeUnitsOnTheirOwnPixels) {
    for (int side = 1; side < 300; ++side) {
        Picture picture(side, 1);
        Canvas canvas(picture);
        canvas.Scale(-1000, 0, side, 1);
        for (int x = 0; x < side; ++x)
            ASSERT_EQ(canvas.Point(x - 1000, 0).left(), x) << side;
    }
    Picture picture(200, 50);
    Canvas canvas(picture);
    canvas.Scale(0, 0, 100, 100);
    EXPECT_EQ(canvas.Circle(50, 50, 10), QRect(80, 5, 41, 41)) << "round, and as wide as x tells";
    canvas.Scale(0, 100, 100, -100);
    EXPECT_EQ(canvas.Point(0, 1).top(), 49);
}

TEST(Canvas, TakesAnyNumberForAPlace) {
    Picture picture(50, 50);
    Canvas canvas(picture);
    canvas.Clear(0);
    canvas.Fill(FillStyle::Solid);
    const double nan = std::nan("");
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(canvas.Line(nan, 0, 9, 9, white).isEmpty());
    EXPECT_TRUE(canvas.Circle(9, 9, nan, white).isEmpty());
    EXPECT_TRUE(canvas.Circle(9, 9, 5, white, nan).isEmpty());
    EXPECT_TRUE(canvas.PaintStretched(Picture(), 0, 0, 9, 9).isEmpty());
    EXPECT_EQ(Difference(picture,
                         [] {
                             Picture black(50, 50);
                             Canvas(black).Clear(0);
                             return black;
                         }()),
              QRect());

    canvas.DrawWidth(3);
    for (const double far : {2147483648.0, 1e300, infinite}) {
        EXPECT_EQ(canvas.Line(-far, -far, far, far, white), QRect(0, 0, 50, 50));
        EXPECT_TRUE(canvas.Line(-far, far, far, far, white).isEmpty());
        EXPECT_EQ(canvas.Box(-far, 10, far, far), QRect(0, 9, 50, 41));
        EXPECT_EQ(canvas.Circle(0, 0, far), QRect(0, 0, 50, 50)) << "all is within";
        const QPointF points[] = {{far, -far}, {far, far}, {-far, far}, {-far, -far}};
        EXPECT_EQ(canvas.Polygon(points), QRect(0, 0, 50, 50));
    }
    canvas.Scale(0, 0, 0, 0);
    EXPECT_TRUE(canvas.Point(0, 0, white).isEmpty());
}

TEST(Canvas, StretchesAPictureByWholePixels) {
    RandomSource chance(3);
    for (int round = 0; round < 300; ++round) {
        const Picture source = RandomPicture(AnyOf(1, 9, chance), AnyOf(1, 9, chance), chance);
        Picture target = RandomPicture(12, 12, chance);
        const Picture before = target;
        const QRect place(AnyOf(-9, 12, chance), AnyOf(-9, 12, chance), AnyOf(0, 20, chance),
                          AnyOf(0, 20, chance));
        const QRect touched = Canvas(target).PaintStretched(source, place.x(), place.y(),
                                                            place.width(), place.height());
        const QRect seen = place & QRect(0, 0, 12, 12);
        EXPECT_EQ(touched, seen.isEmpty() ? QRect() : seen);
        for (int y = 0; y < 12; ++y)
            for (int x = 0; x < 12; ++x)
                ASSERT_EQ(target.Point(x, y),
                          place.contains(x, y)
                              ? source.Point((x - place.x()) * source.Width() / place.width(),
                                             (y - place.y()) * source.Height() / place.height())
                              : before.Point(x, y));
    }
}

}  // namespace
}  // namespace quillbrand
