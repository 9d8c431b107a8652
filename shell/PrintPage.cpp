#include "shell/PrintPage.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <ctime>
#include <optional>

#include "base/Fault.h"
#include "base/NumberText.h"

namespace quillbrand {

namespace {

// The page is measured in twentieths of a printer's point.
constexpr double unitsPerPoint = 20;
constexpr double unitsPerInch = 72 * unitsPerPoint;

/// Where the origin lies, from the corner of the paper.
constexpr double originX = 900;
constexpr double originY = 300;

constexpr double pictureX = 20;

/// What stays free between a text that would be too long and the picture.
constexpr double gap = 80;

/// Of the font that is asked for, so that the page is the same with the one that takes its place.
constexpr double lineHeight = 1.15;
constexpr double ascent = 0.905;

constexpr double firstSize = 8;  // points, the first line of the first copy
constexpr double size = 12;

/// Remarks on the surroundings, such as a missing runtime folder, are no faults of a command.
void PassOnFatal(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtCriticalMsg || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

/// What fonts need, on a machine without a screen and in a program without windows too.
class FontSystem {
  public:
    FontSystem() {
        if (QCoreApplication::instance() != nullptr)
            return;
        formerHandler_ = qInstallMessageHandler(PassOnFatal);
        // The file's date has one length in this zone, whatever the machine's is.
        qputenv("TZ", "UTC");
        tzset();
        application_.emplace(count_, arguments_.data());
        // The application has taken over the user's locale. There is one thread.
        std::setlocale(LC_ALL, "C");  // NOLINT(concurrency-mt-unsafe)
    }
    FontSystem(const FontSystem&) = delete;
    FontSystem& operator=(const FontSystem&) = delete;
    ~FontSystem() {
        if (!application_)
            return;
        application_.reset();
        qInstallMessageHandler(formerHandler_);
    }

  private:
    QtMessageHandler formerHandler_ = nullptr;
    std::string name_ = "quillbrand";
    std::string option_ = "-platform";
    std::string platform_ = "offscreen";
    std::array<char*, 4> arguments_ = {name_.data(), option_.data(), platform_.data(), nullptr};
    int count_ = 3;
    std::optional<QGuiApplication> application_;
};

/// A sheet to paint on, in the units of the page.
struct Sheet {
    QSizeF paper;
    QPointF begin;  ///< where the painter's own origin lies on the paper
    QSizeF unitsPerPixel;
};

QSizeF PaperOf(const QPageLayout& layout) {
    return layout.fullRect(QPageLayout::Point).size() * unitsPerPoint;
}

/// Devices begin where they can print, which is not always at the paper's corner.
Sheet SheetOf(const QPagedPaintDevice& device, const QPainter& painter) {
    const QPageLayout layout = device.pageLayout();
    return {PaperOf(layout),
            layout.paintRect(QPageLayout::Point).topLeft() * unitsPerPoint,
            {unitsPerInch / painter.device()->logicalDpiX(),
             unitsPerInch / painter.device()->logicalDpiY()}};
}

/// Puts the painter's origin and units to those of the page.
void UsePageUnits(QPainter& painter, const Sheet& sheet) {
    painter.resetTransform();
    painter.scale(1 / sheet.unitsPerPixel.width(), 1 / sheet.unitsPerPixel.height());
    painter.translate(QPointF(originX, originY) - sheet.begin);
}

/// A line is narrowed where it is wider than `room`: a path may have any length.
void PaintLine(QPainter& painter, const QString& line, double y, double points, double room) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(static_cast<int>(points * unitsPerPoint));
    painter.save();
    painter.setFont(font);
    painter.translate(0, y);
    const double width = painter.fontMetrics().horizontalAdvance(line);
    if (width > room)
        painter.scale(room / width, 1);
    painter.drawText(QPointF(0, points * unitsPerPoint * ascent), line);
    painter.restore();
}

/// The text stays above `bottom`: on low paper it becomes smaller.
void PaintText(QPainter& painter, const Document& document, double firstLine, double width,
               double bottom) {
    const auto lines = PageLines(document);
    const double points = firstLine + static_cast<double>(lines.size() - 1) * size;
    const double shrink = std::min(1.0, bottom / (points * unitsPerPoint * lineHeight));
    painter.save();
    painter.scale(shrink, shrink);
    double y = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double height = i == 0 ? firstLine : size;
        PaintLine(painter, QString::fromStdString(lines[i]), y, height, width / shrink);
        y += height * unitsPerPoint * lineHeight;
    }
    painter.restore();
}

/// The page's own scale spans twice the picture in both directions.
void PaintPicture(QPainter& painter, const QImage& picture, const QSizeF& paper, double y) {
    if (picture.isNull())
        return;
    const double side = std::min(paper.width(), paper.height()) / 2;
    const QSizeF target = QSizeF(picture.size()).scaled(side, side, Qt::KeepAspectRatio);
    const double pixels = painter.transform().mapRect(QRectF({0, 0}, target)).width();
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, picture.width() > pixels);
    painter.drawImage(QRectF(QPointF(pictureX, y), target), picture);
}

void PaintCopy(QPainter& painter, const Sheet& sheet, const Document& document,
               const QImage& picture, const PrintSettings& settings, bool isFirst) {
    const QSizeF& paper = sheet.paper;
    const double pictureY = paper.height() / 4;
    UsePageUnits(painter, sheet);
    if (settings.settings)
        PaintText(painter, document, isFirst ? firstSize : size, paper.width() - 2 * originX,
                  settings.terrain ? pictureY - gap : paper.height() - 2 * originY);
    if (settings.terrain)
        PaintPicture(painter, picture, paper, pictureY);
}

/// A file tells when it was written; its content is to be the same at any time. Blanks in place of
/// the entry leave every other byte where the file's table of places says.
void RemoveDate(QByteArray& pdf) {
    const qsizetype begin = pdf.lastIndexOf("/CreationDate (");
    if (begin < 0)
        return;
    const qsizetype end = pdf.indexOf(')', begin) + 1;
    std::fill(pdf.begin() + begin, pdf.begin() + end, ' ');
}

}  // namespace

std::array<std::string, 14> PageLines(const Document& document) {
    const clsTerrain& terrain = document.CurrentTerrain;
    const std::string points = std::to_string(terrain.YPoints());
    const double width = terrain.YPoints() * double{terrain.ScaleT()};
    const std::string rule(53, '_');
    return {"Quillbrand V" QB_VERSION,
            rule,
            "  ",
            "                              Settings on Terrain",
            "    ",
            "Name :" + document.CurrentFile,
            "    ",
            "Size           :" + points + " x " + points + " Pixel",
            "Height Scale   : " + PlainText(terrain.ScaleT()) + " m",
            "Landscape Area : " + Format(width, "####### m"),
            "    ",
            "Note    ",
            rule,
            rule};
}

void PrintPage(QPagedPaintDevice& device, CopyAs copyAs, const Document& document,
               const QImage& picture, const PrintSettings& settings) {
    if (settings.settings && QFontDatabase::families().isEmpty())
        throw Fault("there is no font to print with");
    QPainter painter;
    for (int copy = 1; copy <= settings.copies; ++copy) {
        const bool begun = painter.isActive() ? device.newPage() : painter.begin(&device);
        if (!begun)
            throw Fault("the printer does not take the page");
        PaintCopy(painter, SheetOf(device, painter), document, picture, settings, copy == 1);
        const bool ends = copyAs == CopyAs::Job || copy == settings.copies;
        if (ends && !painter.end())
            throw Fault("the printer did not finish the page");
    }
}

QImage PagePicture(const Document& document, const QImage& picture, const PrintSettings& settings,
                   const QPageLayout& paper, QSize room) {
    const QSizeF whole = PaperOf(paper);
    QImage page(whole.scaled(room, Qt::KeepAspectRatio).toSize(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const Sheet sheet{whole, {}, {whole.width() / page.width(), whole.height() / page.height()}};
    PaintCopy(painter, sheet, document, picture, settings, true);
    return page;
}

QPageLayout WholeA4() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, {}};
}

Bytes PrintedPdf(const Document& document, const QImage& picture, const PrintSettings& settings,
                 const QPageLayout& paper) {
    const FontSystem fonts;
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    {
        // The end of the writer is the end of the document.
        QPdfWriter writer(&buffer);
        writer.setTitle(QStringLiteral("Terrain and Settings"));
        writer.setCreator(QStringLiteral("Quillbrand " QB_VERSION));
        writer.setPageLayout(paper);
        PrintPage(writer, CopyAs::Page, document, picture, settings);
    }
    RemoveDate(content);
    const auto bytes =
        std::as_bytes(std::span(content.constData(), static_cast<std::size_t>(content.size())));
    return {bytes.begin(), bytes.end()};
}

}  // namespace quillbrand
