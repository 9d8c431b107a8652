#include "base/Picture.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <limits>

#include "base/Fault.h"
#include "base/Files.h"
#include "base/PictureFormats.h"
#include "base/Text.h"

namespace quillbrand {

namespace {

/// Beside half a gigabyte of pixels no picture is worth reading here.
constexpr int mostMegabytes = 512;

/// Height pictures have few colours and long runs: a low level packs them three times faster than
/// the usual one, for a third more bytes.
constexpr int pngCompression = 12;

QByteArray View(std::span<const std::byte> bytes) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                   static_cast<qsizetype>(bytes.size()));
}

/// What is transparent shows the black behind it.
QImage OnBlack(QImage image) {
    if (!image.hasAlphaChannel())
        return std::move(image).convertToFormat(QImage::Format_RGB32);
    QImage opaque(image.size(), QImage::Format_RGB32);
    opaque.fill(Qt::black);
    QPainter(&opaque).drawImage(0, 0, image);
    return opaque;
}

const char* WriterFormat(const std::filesystem::path& path) {
    const std::string extension = LowerCase(path.extension().string());
    if (extension == ".png")
        return "png";
    if (extension == ".bmp")
        return "bmp";
    return nullptr;
}

}  // namespace

Picture::Picture(int width, int height) : image_(width, height, QImage::Format_RGB32) {
    if (image_.isNull())
        throw Fault("not enough memory for a picture of " + std::to_string(width) + " x " +
                    std::to_string(height) + " points");
}

Picture Picture::Load(const std::filesystem::path& path) {
    return Decode(ReadFile(path, std::numeric_limits<std::size_t>::max()), path.string());
}

Picture Picture::Decode(std::span<const std::byte> bytes, const std::string& name) {
    const PictureFormat* format = FindPictureFormat(bytes);
    if (format == nullptr)
        throw Fault(name + " is no picture that can be read (BMP, DIB, JPEG, GIF, ICO, PNG)");
    if (!format->isWhole(bytes))
        throw Fault("the picture " + name + " is cut short");

    QByteArray content = View(bytes);
    QBuffer buffer(&content);
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(&buffer, format->name);
    reader.setDecideFormatFromContent(false);
    Picture picture;
    QImage image = reader.read();
    if (image.isNull())
        throw Fault("cannot read the picture " + name + ": " + reader.errorString().toStdString());
    picture.image_ = OnBlack(std::move(image));
    return picture;
}

void Picture::Save(const std::filesystem::path& path) const {
    const char* format = WriterFormat(path);
    if (format == nullptr)
        throw Fault("cannot write the picture " + path.string() +
                    ": its name must end in .png or .bmp");
    QByteArray content;
    QBuffer buffer(&content);
    QImageWriter writer(&buffer, format);
    writer.setCompression(pngCompression);
    if (!writer.write(image_))
        throw Fault("cannot write the picture " + path.string() + ": " +
                    writer.errorString().toStdString());
    ReplaceFile(path, std::as_bytes(std::span(content.constData(),
                                              static_cast<std::size_t>(content.size()))));
}

bool IsPictureName(const std::filesystem::path& path) {
    return WriterFormat(path) != nullptr;
}

}  // namespace quillbrand
