#pragma once

#include <QRect>
#include <optional>
#include <span>

#include "base/Picture.h"
#include "base/Spans.h"

namespace quillbrand {

/// What drawing does to a pixel: gives it the colour; turns all its bits round, whatever the
/// colour; turns those round that the colour lacks. The last two restore the picture when the same
/// is drawn twice.
enum class DrawMode { Copy, Invert, NotXor };

enum class FillStyle { Transparent, Solid };

/// A drawing surface over a picture, with units of its own and without anti-aliasing.
///
/// A place means the pixel that it lies in. Outlines run along pixels (base/Shapes.h tells which)
/// and are drawn with a round brush of the draw width; a point is one print of it. Only Line has
/// straight ends. Where the fill is solid, closed shapes are filled with the fill colour up to
/// their outline, so that each pixel is drawn once. Every shape returns the rectangle of pixels
/// that it drew on. Places may lie anywhere; with one that is no number nothing is drawn.
class Canvas {
  public:
    /// The picture must outlive the canvas. The units are its pixels.
    explicit Canvas(Picture& picture);

    /// The units: the picture spans `width` from `left` and `height` from `top`.
    void Scale(double left, double top, double width, double height);

    /// The width of lines, points and outlines in pixels; limited to 1..mostDrawWidth.
    void DrawWidth(int pixels);
    static constexpr int mostDrawWidth = 1024;

    void Mode(DrawMode mode) { mode_ = mode; }
    void Fill(FillStyle style) { fill_ = style; }
    void FillColour(Colour colour) { fillColour_ = colour; }

    /// The colour of lines, points and outlines that are given none.
    void ForeColour(Colour colour) { foreColour_ = colour; }

    /// Gives every pixel this colour, in every mode.
    QRect Clear(Colour colour);

    QRect Point(double x, double y, Colour colour = noColour);

    /// A straight line, both ends included. A wide one is `DrawWidth` pixels across, counted along
    /// the axis on which the line is shorter (along x where both are as long), and no longer than
    /// a narrow one.
    QRect Line(double x1, double y1, double x2, double y2, Colour colour = noColour);

    /// A box with these corners in any order, both included.
    QRect Box(double x1, double y1, double x2, double y2, Colour colour = noColour);

    /// The same, filled with the colour of its outline whatever the fill style.
    QRect FilledBox(double x1, double y1, double x2, double y2, Colour colour = noColour);

    /// A circle around (x, y); the radius is in units along x, and pixels count as square.
    /// `aspect` is the height of an ellipse as a multiple of its width; the longer of both is twice
    /// the radius. Both radii are rounded to whole pixels, halves to even. Nothing is drawn for a
    /// radius or an aspect below 0.
    QRect Circle(double x, double y, double radius, Colour colour = noColour, double aspect = 1);

    /// A polygon through any number of points, which is closed. What it surrounds twice is outside.
    QRect Polygon(std::span<const QPointF> points, Colour colour = noColour);

    /// Another picture over a rectangle of this one, each pixel the one of `source` at
    /// floor(pixel * source side / target side), in every mode. Requires: another picture.
    QRect PaintStretched(const Picture& source, double x, double y, double width, double height);

  private:
    std::optional<QPoint> PixelAt(double x, double y) const;
    QRect Window() const;
    QRect DrawBox(double x1, double y1, double x2, double y2, Colour colour,
                  std::optional<Colour> fill);
    QRect DrawClosed(const Spans& trace, const Spans& inside, Colour colour,
                     std::optional<Colour> fill);
    QRect Paint(const Spans& spans, Colour colour);
    std::optional<Colour> FillOrNone() const;

    Picture& picture_;
    double left_ = 0;
    double top_ = 0;
    double width_;
    double height_;
    int drawWidth_ = 1;
    Spans brush_ = RoundBrush(1);
    DrawMode mode_ = DrawMode::Copy;
    FillStyle fill_ = FillStyle::Transparent;
    Colour foreColour_ = ColourOf(0, 0, 0);
    Colour fillColour_ = ColourOf(0, 0, 0);
};

}  // namespace quillbrand
