#include "base/Picture.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <map>

#include "base/PictureFormats.h"
#include "tests/support/Damage.h"
#include "tests/support/Faults.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

/// A picture in which every pixel differs from its neighbours.
Picture Sample(int width, int height) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.Row(y)[x] = qRgb(x, y, (7 * x + 13 * y) & 255);
    return picture;
}

Bytes Encoded(const QImage& image, const char* format) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    const auto bytes = std::as_bytes(std::span(content.constData(), std::size_t(content.size())));
    return {bytes.begin(), bytes.end()};
}

Bytes BytesOf(const std::string& text) {
    const auto bytes = AsBytes(text);
    return {bytes.begin(), bytes.end()};
}

/// A segment of a JPEG file: its marker, its length, its content.
Bytes Segment(int marker, const Bytes& content) {
    const std::size_t length = content.size() + 2;
    const Bytes head = {std::byte{0xFF}, std::byte(marker), std::byte(length >> 8),
                        std::byte(length & 255)};
    return Inserted(content, 0, head);
}

/// A JPEG file with a whole, smaller one in front of its own picture.
Bytes JpegWithThumbnail(const Picture& picture) {
    const Bytes thumbnail = Encoded(Sample(8, 6).Image(), "jpg");
    return Inserted(Encoded(picture.Image(), "jpg"), 2,
                    Segment(0xE1, Inserted(thumbnail, 0, BytesOf({"Exif\0\0", 6}))));
}

/// A GIF file of grey points, v = 3x + 5y, with a note in front of them. Each code is a byte: the
/// table of codes is cleared before it grows beyond that. The colours stand in front of all, or of
/// the image.
Bytes Gif(int width, int height, bool hasOwnColours) {
    std::string data;
    for (int i = 0; i < width * height; ++i) {
        if (i % 100 == 0)
            data += '\x80';
        data += static_cast<char>(3 * (i % width) + 5 * (i / width));
    }
    data += '\x81';
    const std::string side = {static_cast<char>(width), 0, static_cast<char>(height), 0};
    std::string colours;
    for (int i = 0; i < 128; ++i)
        colours += std::string(3, static_cast<char>(i));
    std::string file = "GIF89a" + side + std::string(hasOwnColours ? "\0\0\0" : "\xf6\0\0", 3) +
                       (hasOwnColours ? "" : colours) +
                       std::string("!\xfe\x05;;;;;\0,\0\0\0\0", 14) + side +
                       (hasOwnColours ? '\x86' + colours : std::string(1, '\0')) + '\7';
    for (std::size_t i = 0; i < data.size(); i += 200) {
        const std::string block = data.substr(i, 200);
        file += static_cast<char>(block.size()) + block;
    }
    return BytesOf(file + std::string("\0;", 2));
}

/// A file of each format, and of each kind of bitmap, by a name for it.
std::map<std::string, Bytes> Files() {
    const Picture picture = Sample(13, 9);
    const QImage& image = picture.Image();
    return {{"png", Encoded(image, "png")},
            {"jpeg", Encoded(image, "jpg")},
            {"jpeg with a thumbnail", JpegWithThumbnail(picture)},
            {"gif", Gif(13, 9, false)},
            {"gif with colours of its image", Gif(13, 9, true)},
            {"bmp of 24 bits", Encoded(image, "bmp")},
            {"bmp that tells no start", SetByte(Encoded(image, "bmp"), 10, 0)},
            {"bmp of 8 bits", Encoded(image.convertToFormat(QImage::Format_Indexed8), "bmp")},
            {"bmp of 1 bit", Encoded(image.convertToFormat(QImage::Format_Mono), "bmp")},
            {"icon", Encoded(image, "ico")}};
}

TEST(Picture, ReadsColoursAsBlueGreenRedAndMinusOneOutside) {
    const Picture picture = Sample(5, 4);
    EXPECT_EQ(picture.Point(3, 2), 3 + 2 * 256 + (7 * 3 + 13 * 2) * 65536);
    EXPECT_EQ(picture.Point(-1, 0), noColour);
    EXPECT_EQ(picture.Point(5, 0), noColour);
    EXPECT_EQ(Picture().Point(0, 0), noColour);
}

TEST(Picture, IsSavedAndLoadedWithoutLossWhateverItsName) {
    const TemporaryFolder folder;
    const Picture picture = Sample(13, 9);
    for (const char* name : {"a.png", "b.BMP"}) {
        picture.Save(folder / name);
        std::filesystem::rename(folder / name, folder / "x.flt");
        EXPECT_EQ(Picture::Load(folder / "x.flt").Image(), picture.Image()) << name;
    }
    EXPECT_THROW(picture.Save(folder / "c.xyz"), Fault);
    EXPECT_FALSE(IsPictureName("c.xyz"));
}

TEST(Picture, ReadsEveryFormat) {
    const QImage image = Sample(13, 9).Image();
    for (const auto& [name, file] : Files()) {
        const Picture picture = Picture::Decode(file, name);
        ASSERT_EQ(picture.Image().size(), image.size()) << name;
        if (name.starts_with("gif")) {
            EXPECT_EQ(picture.Point(12, 8), 76 * 0x10101);
        } else if (name == "png" || name == "icon" || name == "bmp of 24 bits" ||
                   name == "bmp that tells no start") {
            EXPECT_EQ(picture.Image(), image) << name;
        } else if (name.starts_with("jpeg")) {
            EXPECT_NEAR(picture.Point(12, 8) >> 16, 188, 12) << name;
        }
    }
}

TEST(Picture, RefusesAFileThatIsCutShortAnywhere) {
    constexpr std::size_t longestMagic = 8;
    for (const auto& [name, file] : Files())
        for (std::size_t size = 0; size < file.size(); ++size) {
            const std::string fault =
                FaultOf([&, &whole = file] { Picture::Decode(Truncated(whole, size), "x"); });
            ASSERT_NE(fault, "no fault") << name << size;
            if (size >= longestMagic) {
                ASSERT_EQ(fault, "the picture x is cut short") << name << size;
            }
        }
}

TEST(Picture, TakesAFileWithMoreBehindItsEnd) {
    for (const char* name : {"png", "jpeg with a thumbnail", "gif", "bmp of 24 bits", "icon"}) {
        const Bytes file = Files()[name];
        EXPECT_EQ(Picture::Decode(Inserted(file, file.size(), BytesOf("more")), name).Image(),
                  Picture::Decode(file, name).Image());
    }
}

TEST(PictureFormat, FindsTheEndOfAJpegFileOnlyAmongItsMarkers) {
    // What looks like the end stands in a segment, and in the data behind a zero and a restart.
    const std::string start("\xff\xd8\xff\xfe\0\6\xff\xd9\xff\xd9\xff\xda\0\3x", 15);
    const std::string data("12\xff\0\xd9\xff\xd0\xd9\xff\x01\xd9", 11);
    const auto isWhole = [](const std::string& text) {
        return FindPictureFormat(AsBytes(text))->isWhole(AsBytes(text));
    };
    EXPECT_FALSE(isWhole(start + data));
    EXPECT_TRUE(isWhole(start + data + "\xff\xd9"));
    EXPECT_TRUE(isWhole(start + data + "\xff\xff\xff\xd9more"));
    EXPECT_FALSE(isWhole(start + data + "\xff"));
}

TEST(PictureFormat, FindsTheEndOfAPackedBitmapByItsCodes) {
    for (const int compression : {1, 2}) {
        Bytes file = Encoded(Sample(6, 2).Image().convertToFormat(QImage::Format_Indexed8), "bmp");
        const std::size_t start =
            std::to_integer<unsigned>(file[10]) + 256 * std::to_integer<unsigned>(file[11]);
        // A run, points as they are in three bytes and one more, and in four; a jump, the end of
        // the line and of the picture.
        const std::string codes = compression == 1
                                      ? std::string("\2\1\0\3abc\0\0\4abcd\0\2\1\1", 18)
                                      : std::string("\2\1\0\5abc\0\0\7abcd\0\2\1\1", 18);
        file = SetByte(SetByte(Truncated(file, start), 30, compression), 34, 0);
        file = SetByte(file, 35, 0);
        const Bytes whole = Inserted(file, start, BytesOf(codes + std::string("\0\0\0\1", 4)));
        const auto* format = FindPictureFormat(whole);
        EXPECT_TRUE(format->isWhole(whole));
        for (std::size_t count = 1; count < 20; ++count)
            EXPECT_FALSE(format->isWhole(Shrink(whole, count))) << count;
        EXPECT_TRUE(format->isWhole(Shrink(SetByte(whole, 34, 20), 2))) << "it tells its length";
    }
}

TEST(Picture, ShowsBlackWhereAFileIsTransparent) {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(200, 100, 50, 0));
    image.setPixel(1, 0, qRgba(200, 100, 50, 255));
    for (const char* format : {"png", "ico"}) {
        const Picture picture = Picture::Decode(Encoded(image, format), format);
        EXPECT_EQ(picture.Point(0, 0), 0) << format;
        EXPECT_EQ(picture.Point(1, 0), ColourOf(200, 100, 50)) << format;
    }
}

}  // namespace
}  // namespace quillbrand
