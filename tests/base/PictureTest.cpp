#include "base/Picture.h"

#include <gtest/gtest.h>

#include <QBuffer>

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

Bytes Encoded(const Picture& picture, const char* format) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.Image().save(&buffer, format)) << format;
    const auto bytes = std::as_bytes(std::span(content.constData(), std::size_t(content.size())));
    return {bytes.begin(), bytes.end()};
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

TEST(Picture, RefusesAFileThatIsCutShortAnywhere) {
    const Picture picture = Sample(40, 30);
    for (const char* format : {"png", "bmp", "jpg"}) {
        const Bytes whole = Encoded(picture, format);
        EXPECT_EQ(Picture::Decode(whole, "a").Width(), 40) << format;
        for (std::size_t i = 1; i < 8; ++i) {
            const Bytes part(whole.begin(), whole.begin() + std::ptrdiff_t(whole.size() * i / 8));
            EXPECT_THROW(Picture::Decode(part, "a"), Fault) << format << " " << i << "/8";
        }
        const Bytes almost(whole.begin(), whole.end() - 1);
        EXPECT_THROW(Picture::Decode(almost, "a"), Fault) << format;
    }
}

TEST(Picture, NamesAFileThatIsNone) {
    const TemporaryFolder folder;
    WriteText(folder / "a.png", "no picture at all");
    EXPECT_EQ(FaultOf([&] { Picture::Load(folder / "a.png"); }),
              (folder / "a.png").string() +
                  " is no picture that can be read (BMP, DIB, JPEG, GIF, ICO, PNG)");
}

}  // namespace
}  // namespace quillbrand
