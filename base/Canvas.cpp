#include "base/Canvas.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "base/Numbers.h"
#include "base/Shapes.h"

namespace quillbrand {

namespace {

constexpr QRgb allColours = 0x00ffffff;
constexpr QRgb opaque = 0xff000000;

int Limited(double pixel) {
    constexpr double far = farthestPixel;
    return static_cast<int>(std::floor(std::clamp(pixel, -far, far)));
}

template <typename Change>
void ForPixels(Picture& picture, const Spans& spans, Change change) {
    for (const Span& span : spans) {
        QRgb* const row = picture.Row(span.y);
        for (int x = span.left; x <= span.right; ++x)
            row[x] = change(row[x]);
    }
}

/// For each of a target's pixels first..last the source's, when `from` pixels are stretched over
/// `to`.
std::vector<int> Stretched(int first, int last, std::int64_t from, std::int64_t to) {
    std::vector<int> sources;
    for (std::int64_t i = first; i <= last; ++i)
        sources.push_back(static_cast<int>(i * from / to));
    return sources;
}

}  // namespace

Canvas::Canvas(Picture& picture)
    : picture_(picture), width_(picture.Width()), height_(picture.Height()) {}

void Canvas::Scale(double left, double top, double width, double height) {
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
}

void Canvas::DrawWidth(int pixels) {
    drawWidth_ = std::clamp(pixels, 1, mostDrawWidth);
    brush_ = RoundBrush(drawWidth_);
}

std::optional<QPoint> Canvas::PixelAt(double x, double y) const {
    // The product first: whole units of a scale of one a pixel stay whole.
    const double pixelX = (x - left_) * picture_.Width() / width_;
    const double pixelY = (y - top_) * picture_.Height() / height_;
    if (std::isnan(pixelX) || std::isnan(pixelY))
        return std::nullopt;
    return QPoint(Limited(pixelX), Limited(pixelY));
}

/// Where a trace must be known so that its brush is right within the picture.
QRect Canvas::Window() const {
    return picture_.Image().rect().adjusted(-drawWidth_, -drawWidth_, drawWidth_, drawWidth_);
}

std::optional<Colour> Canvas::FillOrNone() const {
    return fill_ == FillStyle::Solid ? std::optional(fillColour_) : std::nullopt;
}

QRect Canvas::Paint(const Spans& spans, Colour colour) {
    const QRgb pixel = PixelOf(colour == noColour ? foreColour_ : colour);
    const QRgb lacking = ~pixel & allColours;
    switch (mode_) {
        case DrawMode::Copy:
            ForPixels(picture_, spans, [=](QRgb) { return pixel; });
            break;
        case DrawMode::Invert:
            ForPixels(picture_, spans, [](QRgb old) { return (old ^ allColours) | opaque; });
            break;
        case DrawMode::NotXor:
            ForPixels(picture_, spans, [=](QRgb old) { return (old ^ lacking) | opaque; });
            break;
    }
    return Around(spans);
}

QRect Canvas::DrawClosed(const Spans& trace, const Spans& inside, Colour colour,
                         std::optional<Colour> fill) {
    const QRect clip = picture_.Image().rect();
    const Spans outline = Brushed(trace, brush_, clip);
    QRect touched = Paint(outline, colour);
    if (fill)
        touched |= Paint(Without(Brushed(inside, RoundBrush(1), clip), outline), *fill);
    return touched;
}

QRect Canvas::Clear(Colour colour) {
    picture_.Image().fill(PixelOf(colour));
    return picture_.Image().rect();
}

QRect Canvas::Point(double x, double y, Colour colour) {
    const auto pixel = PixelAt(x, y);
    if (!pixel)
        return {};
    return Paint(Brushed({{pixel->y(), pixel->x(), pixel->x()}}, brush_, picture_.Image().rect()),
                 colour);
}

QRect Canvas::Line(double x1, double y1, double x2, double y2, Colour colour) {
    const auto from = PixelAt(x1, y1);
    const auto to = PixelAt(x2, y2);
    if (!from || !to)
        return {};
    const QPoint way = *to - *from;
    const Spans brush = FlatBrush(drawWidth_, std::abs(way.x()) > std::abs(way.y()));
    return Paint(Brushed(LineTrace(*from, *to, Window()), brush, picture_.Image().rect()), colour);
}

QRect Canvas::DrawBox(double x1, double y1, double x2, double y2, Colour colour,
                      std::optional<Colour> fill) {
    const auto one = PixelAt(x1, y1);
    const auto other = PixelAt(x2, y2);
    if (!one || !other)
        return {};
    const QRect window = Window();
    return DrawClosed(BoxTrace(*one, *other, window), BoxInside(*one, *other, window), colour,
                      fill);
}

QRect Canvas::Box(double x1, double y1, double x2, double y2, Colour colour) {
    return DrawBox(x1, y1, x2, y2, colour, FillOrNone());
}

QRect Canvas::FilledBox(double x1, double y1, double x2, double y2, Colour colour) {
    return DrawBox(x1, y1, x2, y2, colour, colour);
}

QRect Canvas::Circle(double x, double y, double radius, Colour colour, double aspect) {
    const auto centre = PixelAt(x, y);
    const double pixels = std::abs(picture_.Width() / width_) * radius;
    if (!centre || !(pixels >= 0) || !(aspect >= 0))
        return {};
    const double larger = std::min<double>(pixels, farthestPixel);
    const int radiusX = RoundTo32(aspect > 1 ? larger / aspect : larger);
    const int radiusY = RoundTo32(aspect < 1 ? larger * aspect : larger);
    const QRect window = Window();
    return DrawClosed(EllipseTrace(*centre, radiusX, radiusY, window),
                      EllipseInside(*centre, radiusX, radiusY, window), colour, FillOrNone());
}

QRect Canvas::Polygon(std::span<const QPointF> points, Colour colour) {
    std::vector<QPoint> pixels;
    for (const QPointF point : points) {
        const auto pixel = PixelAt(point.x(), point.y());
        if (!pixel)
            return {};
        pixels.push_back(*pixel);
    }
    const QRect window = Window();
    return DrawClosed(PolygonTrace(pixels, window), PolygonInside(pixels, window), colour,
                      FillOrNone());
}

QRect Canvas::PaintStretched(const Picture& source, double x, double y, double width,
                             double height) {
    assert(&source != &picture_);
    const auto first = PixelAt(x, y);
    const auto end = PixelAt(x + width, y + height);
    if (!first || !end || source.Width() == 0)
        return {};
    const QRect target(*first, *end - QPoint(1, 1));
    const QRect touched = target & picture_.Image().rect();
    if (target.isEmpty() || touched.isEmpty())
        return {};
    const QRect places = touched.translated(-target.topLeft());
    const auto columns = Stretched(places.left(), places.right(), source.Width(), target.width());
    const auto rows = Stretched(places.top(), places.bottom(), source.Height(), target.height());
    for (std::size_t j = 0; j < rows.size(); ++j) {
        const QRgb* const from = source.Row(rows[j]);
        QRgb* const to = picture_.Row(touched.top() + static_cast<int>(j)) + touched.left();
        for (std::size_t i = 0; i < columns.size(); ++i)
            to[i] = from[columns[i]];
    }
    return touched;
}

}  // namespace quillbrand
