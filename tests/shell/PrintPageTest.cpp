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

class PrintedPage : public testing::Test {
  protected:
    PrintedPage() {
        document.CurrentTerrain.Init(5);
        document.CurrentTerrain.ScaleT(30);
        document.CurrentFile = "/a b/hill.ter";
        picture.fill(Qt::red);
        picture.setPixelColor(1, 2, QColor(1, 2, 3));
    }

    /// Prints into a file of the folder and returns its path.
    std::filesystem::path Pdf(const PrintSettings& settings) {
        auto path = folder / "page.pdf";
        ReplaceFile(path, PrintedPdf(document, picture, settings));
        return path;
    }

    TemporaryFolder folder;
    Document document;
    QImage picture{7, 7, QImage::Format_RGB32};
};

/// The smallest rectangle, in the pixels of `page`, of all pixels that `isWanted`.
template <typename Wanted>
QRect Extent(const QImage& page, Wanted isWanted) {
    QRect extent;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x)
            if (isWanted(page.pixelColor(x, y)))
                extent |= QRect(x, y, 1, 1);
    return extent;
}

QRect RedPart(const QImage& page) {
    return Extent(page, [](const QColor& c) { return c.red() > 200 && c.green() < 60; });
}

TEST_F(PrintedPage, HasTheLinesInTheirOrder) {
    EXPECT_EQ(PageLines(document)[7], "Size           :5 x 5 Pixel");
    EXPECT_EQ(PageLines(document)[8], "Height Scale   : 30 m");
    EXPECT_EQ(PdfText(Pdf({})), lines);
}

TEST_F(PrintedPage, HasThePictureAtItsPlaceBelowTheText) {
    // Ten units of the page are a pixel.
    const QImage page = PdfPage(Pdf({}), 1, 144);
    const QRect red = RedPart(page);
    EXPECT_NEAR(red.left(), 90 + 2, 1);
    EXPECT_NEAR(red.top(), 30 + page.height() / 4.0, 1);
    EXPECT_NEAR(red.width(), page.width() / 2.0, 2);
    EXPECT_NEAR(red.height(), red.width(), 1);
    const QRect text = Extent(page, [](const QColor& c) { return c.red() < 100; });
    EXPECT_NEAR(text.left(), 90, 3);
    EXPECT_NEAR(text.top(), 30, 6);
    EXPECT_TRUE(PdfPictures(Pdf({})) == std::vector<QImage>{picture});
}

TEST_F(PrintedPage, SetsTheFirstLineSmallerOnTheFirstCopyOnly) {
    const auto path = Pdf({.copies = 3});
    const double first = WordBox(path, 1, "Quillbrand").height();
    EXPECT_NEAR(first * 12 / 8, WordBox(path, 2, "Quillbrand").height(), 0.1);
    EXPECT_NEAR(first * 12 / 8, WordBox(path, 1, "Note").height(), 0.1);
    EXPECT_EQ(PdfPictures(path).size(), 3u);
}

TEST_F(PrintedPage, PrintsOnlyWhatIsTicked) {
    const auto text = Pdf({.terrain = false});
    EXPECT_EQ(PdfText(text), lines);
    EXPECT_TRUE(PdfPictures(text).empty());
    EXPECT_EQ(PdfText(Pdf({.settings = false})), "");
    EXPECT_EQ(PdfPictures(Pdf({.settings = false})).size(), 1u);
    const auto nothing = Pdf({.terrain = false, .settings = false, .copies = 2});
    EXPECT_EQ(PdfText(nothing), "");
    EXPECT_TRUE(RedPart(PdfPage(nothing, 2, 36)).isEmpty());
    EXPECT_TRUE(PrintedPdf(document, picture, {.copies = 0}).empty());
}

TEST_F(PrintedPage, KeepsALongPathOnThePaper) {
    document.CurrentFile = "/" + std::string(200, 'w') + "/end";
    EXPECT_LT(WordBox(Pdf({}), 1, "Name").right(), 100);
    const QImage page = PdfPage(Pdf({.terrain = false}), 1, 72);
    EXPECT_LE(Extent(page, [](const QColor& c) { return c.red() < 200; }).right(), 595 - 44);
}

TEST_F(PrintedPage, MakesAJobOfEachCopyAndFitsLowPaperWithMargins) {
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

    const auto path = folder / "jobs.pdf";
    const QByteArray last = buffer.data().mid(buffer.data().lastIndexOf("%PDF-"));
    WriteText(path, last.toStdString());
    const QImage page = PdfPage(path, 1, 144);
    const QRect red = RedPart(page);
    EXPECT_NEAR(red.left(), 92, 1);
    EXPECT_NEAR(red.top(), 30 + page.height() / 4.0, 1);
    EXPECT_LT(WordBox(path, 1, "Note").bottom() * 2, red.top());
}

}  // namespace
}  // namespace quillbrand
