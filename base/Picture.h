#pragma once

#include <QImage>
#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

#include "base/Colours.h"

namespace quillbrand {

/// A 24-bit raster.
class Picture {
  public:
    /// No points at all: every read gives noColour.
    Picture() = default;

    /// Any content. Throws Fault when there is no memory for it.
    Picture(int width, int height);

    /// Reads a BMP, DIB, JPEG, GIF, ICO or PNG file; its content decides, not its name. A file that
    /// is cut short is refused. Throws Fault with the path and the reason.
    static Picture Load(const std::filesystem::path& path);

    /// The same from a file's bytes; `name` is what a Fault calls it.
    static Picture Decode(std::span<const std::byte> bytes, const std::string& name);

    int Width() const { return image_.width(); }
    int Height() const { return image_.height(); }

    Colour Point(int x, int y) const {
        if (!image_.valid(x, y))
            return noColour;
        return ColourOf(Row(y)[x]);
    }

    /// Row y as 0xFFRRGGBB, Width() of them.
    QRgb* Row(int y) { return reinterpret_cast<QRgb*>(image_.scanLine(y)); }
    const QRgb* Row(int y) const { return reinterpret_cast<const QRgb*>(image_.constScanLine(y)); }

    /// Replaces the file as PNG or BMP, by its extension (regardless of case). Throws Fault.
    void Save(const std::filesystem::path& path) const;

    const QImage& Image() const { return image_; }
    QImage& Image() { return image_; }

  private:
    QImage image_;
};

/// True for a path whose extension Picture::Save knows.
bool IsPictureName(const std::filesystem::path& path);

}  // namespace quillbrand
