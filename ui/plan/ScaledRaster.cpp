#include "ui/plan/ScaledRaster.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace quillbrand {

namespace {

constexpr int channels = 4;

/// A whole pixel's worth of weights, so that sums over a column fit 16 bits.
constexpr std::int64_t whole = 256;

void AddRow(const std::uint8_t* row, int bytes, std::uint16_t weight, std::uint16_t* sums) {
    for (int i = 0; i < bytes; ++i)
        sums[i] = static_cast<std::uint16_t>(sums[i] + row[i] * weight);
}

}  // namespace

ScaledRaster::Axis::Axis(int points, int pixels) : points_(points) {
    for (std::int64_t pixel = 0; pixel < pixels; ++pixel) {
        start_.push_back(static_cast<int>(weights_.size()));
        if (points <= pixels) {
            first_.push_back(static_cast<int>((2 * pixel + 1) * points / (2 * pixels)));
            weights_.push_back(whole);
            continue;
        }
        // In units of which a pixel spans `points` and a point `pixels`.
        const std::int64_t left = pixel * points;
        const std::int64_t right = left + points;
        first_.push_back(static_cast<int>(left / pixels));
        std::int64_t given = 0;
        for (std::int64_t point = left / pixels; point * pixels < right; ++point) {
            const std::int64_t covered = std::min((point + 1) * pixels, right) - left;
            const std::int64_t due = (2 * whole * covered + points) / (2 * points);
            weights_.push_back(static_cast<std::uint16_t>(due - given));
            given = due;
        }
    }
    start_.push_back(static_cast<int>(weights_.size()));
}

ScaledRaster::Axis::Share ScaledRaster::Axis::OfPixel(int pixel) const {
    const auto i = static_cast<std::size_t>(pixel);
    return {first_[i], start_[i + 1] - start_[i], weights_.data() + start_[i]};
}

std::pair<int, int> ScaledRaster::Axis::PixelsOf(int first, int last) const {
    const int pixels = static_cast<int>(first_.size());
    int from = static_cast<int>(std::int64_t{first} * pixels / points_);
    int to = std::min(pixels, static_cast<int>((last + std::int64_t{1}) * pixels / points_) + 1);
    const auto isBefore = [&](int pixel) {
        const Share share = OfPixel(pixel);
        return share.first + share.count <= first;
    };
    while (from < to && isBefore(from))
        ++from;
    while (from < to && OfPixel(to - 1).first > last)
        --to;
    return {from, to};
}

const QImage& ScaledRaster::Scale(const Picture& raster, QSize widget, double ratio) {
    const QSize pixels = (QSizeF(widget) * ratio).toSize();
    assert(raster.Width() > 0 && raster.Height() > 0 && !pixels.isEmpty());
    const QSize points(raster.Width(), raster.Height());
    if (image_.size() != pixels || points_ != points) {
        image_ = QImage(pixels, QImage::Format_RGB32);
        image_.setDevicePixelRatio(ratio);
        points_ = points;
        across_ = Axis(points.width(), pixels.width());
        down_ = Axis(points.height(), pixels.height());
        stale_ = QRect(QPoint(), points);
    }
    for (const QRect& part : stale_& QRect(QPoint(), points))
        Rescale(raster, part);
    stale_ = QRegion();
    return image_;
}

void ScaledRaster::Rescale(const Picture& raster, const QRect& points) {
    const auto [left, right] = across_.PixelsOf(points.left(), points.right());
    const auto [top, bottom] = down_.PixelsOf(points.top(), points.bottom());
    if (left >= right)
        return;
    const Axis::Share end = across_.OfPixel(right - 1);
    const int firstColumn = across_.OfPixel(left).first;
    const int endColumn = end.first + end.count;
    const auto bytes = static_cast<std::size_t>(right - left) * sizeof(QRgb);
    const auto row = [&](int y) { return reinterpret_cast<QRgb*>(image_.scanLine(y)); };
    int lastPoint = -1;
    for (int y = top; y < bottom; ++y) {
        const Axis::Share rows = down_.OfPixel(y);
        if (rows.count == 1 && rows.first == lastPoint) {
            std::memcpy(row(y) + left, row(y - 1) + left, bytes);
            continue;
        }
        lastPoint = rows.count == 1 ? rows.first : -1;
        AddRows(raster, rows, firstColumn, endColumn);
        MakeRow(row(y), left, right, firstColumn);
    }
}

/// The weighted sums of some rows of the raster, for its columns from..to - 1.
void ScaledRaster::AddRows(const Picture& raster, const Axis::Share& rows, int from, int to) {
    const int bytes = (to - from) * channels;
    sums_.assign(static_cast<std::size_t>(bytes), 0);
    for (int i = 0; i < rows.count; ++i)
        AddRow(reinterpret_cast<const std::uint8_t*>(raster.Row(rows.first + i) + from), bytes,
               rows.weights[i], sums_.data());
}

/// The pixels from..to - 1 of a row out of the sums of its columns.
void ScaledRaster::MakeRow(QRgb* row, int from, int to, int firstColumn) const {
    constexpr std::uint32_t half = 1 << 15;
    for (int x = from; x < to; ++x) {
        const Axis::Share share = across_.OfPixel(x);
        const std::uint16_t* sum = sums_.data() + (share.first - firstColumn) * channels;
        std::uint32_t total[channels] = {half, half, half, half};
        for (int i = 0; i < share.count; ++i)
            for (int c = 0; c < channels; ++c)
                total[c] += std::uint32_t{sum[i * channels + c]} * share.weights[i];
        std::uint8_t bytes[channels];
        for (int c = 0; c < channels; ++c)
            bytes[c] = static_cast<std::uint8_t>(total[c] >> 16);
        std::memcpy(row + x, bytes, sizeof(QRgb));
    }
}

}  // namespace quillbrand
