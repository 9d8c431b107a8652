#include "shell/PrintPage.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>

#include "tests/support/PdfTools.h"
#include "tests/support/TemporaryFolder.h"

namespace quillbrand {
namespace {

constexpr auto lines = "Quillbrand V" QB_VERSION R"(
_____________________________________________________
Settings on Terrain
Name :/a b/hill.ter
Size :5 x 5 Pixel
Height Scale : 30 m
Landscape Area : 150 m
Note
_____________________________________________________
_____________________________________________________
)";

/// Prints a red picture whose first row shows what lies behind it.
class PrintedPage : public testing::Test {
  protected:
    PrintedPage() {
        document.CurrentTerrain.Init(5);
        document.CurrentTerrain.ScaleT(30);
        document.CurrentFile = "/a b/hill.ter";
        picture.fill(Qt::red);
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixelColor(x, 0, Qt::transparent);
    }

    /// Prints into a file of the folder and returns its path.
    std::filesystem::path Pdf(const PrintSettings& settings) {
        auto path = folder / "page.pdf";
        ReplaceFile(path, PrintedPdf(document, picture, settings));
        return path;
    }

    TemporaryFolder folder;
    Document document;
    QImage picture{7, 7, QImage::Format_ARGB32};
};

/// The smallest rectangle, in the pixels of `page`, of all that is red, or of all that is dark.
QRect Extent(const QImage& page, bool isRed) {
    QRect extent;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (const QColor c = page.pixelColor(x, y); c.green() < 60 && (c.red() > 200) == isRed)
                extent |= QRect(x, y, 1, 1);
    return extent;
}

/// Ten units of the page are a pixel of `page`.
void ExpectPictureBelowText(const QImage& page) {
    const QRect red = Extent(page, true);
    const double side = std::min(page.width(), page.height()) / 2.0;
    EXPECT_NEAR(red.left(), 90 + 2, 1);
    EXPECT_NEAR(red.top(), 30 + page.height() / 4.0 + side / 7, 1);
    EXPECT_NEAR(red.width(), side, 2);
    EXPECT_NEAR(red.height(), side * 6 / 7, 2);
    const QRect text = Extent(page, false);
    EXPECT_NEAR(text.left(), 90, 3);
    EXPECT_NEAR(text.top(), 30, 6);
    EXPECT_LE(text.right(), page.width() - 90);
    EXPECT_LT(text.bottom(), 30 + page.height() / 4.0 - 4) << "the last rule ends in the gap";
}

TEST_F(PrintedPage, HasThePictureBelowTheLinesAndASmallerLineOnTheFirstCopy) {
    const auto path = Pdf({.copies = 2});
    EXPECT_EQ(PdfText(path), std::string(lines) + lines);
    ExpectPictureBelowText(PdfPage(path, 1, 144));
    const double first = WordBox(path, 1, "Quillbrand").height();
    EXPECT_NEAR(first * 12 / 8, WordBox(path, 2, "Quillbrand").height(), 0.1);
    EXPECT_NEAR(first * 12 / 8, WordBox(path, 1, "Note").height(), 0.1);
}

TEST_F(PrintedPage, MakesAJobOfEachCopyAndFitsLowPaperWithMargins) {
    document.CurrentFile = "/" + std::string(200, 'w') + "/a long path";
    int count = 1;
    std::string name = "test";
    char* arguments[] = {name.data(), nullptr};
    const QGuiApplication application(count, arguments);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter device(&buffer);
        device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                         QMarginsF(10, 5, 10, 5), QPageLayout::Millimeter));
        PrintPage(device, CopyAs::Job, document, picture, {.copies = 3});
    }
    EXPECT_EQ(buffer.data().count("%PDF-"), 3);
    const QByteArray last = buffer.data().mid(buffer.data().lastIndexOf("%PDF-"));
    WriteText(folder / "last.pdf", last.toStdString());
    const QImage page = PdfPage(folder / "last.pdf", 1, 144);
    ExpectPictureBelowText(page);
    EXPECT_NEAR(Extent(page, false).right(), page.width() - 90, 4) << "the path as wide as it can";
}

}  // namespace
}  // namespace quillbrand
